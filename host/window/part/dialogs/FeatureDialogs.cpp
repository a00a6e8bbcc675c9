#include "FeatureDialogs.h"

#include "FeatureDialog.h"
#include "FeatureKind.h"
#include "HostApplication.h"
#include "MessageLevel.h"

#include <algorithm>

namespace {

bool Run(const DialogStep& step, DialogFields& fields, bool isNew, QWidget* window)
{
    const std::unique_ptr<QDialog> dialog = step.make();
    dialog->setParent(window, dialog->windowFlags());
    // The dialog of a new feature opens with its own defaults.
    if (!isNew)
        step.show(*dialog, fields);
    const ConstructionErrorText zeroDirection(
        DialogFields::tr("A direction needs a component other than 0; the dialog stays open"));
    const DialogFields before = fields;
    while (dialog->exec() == QDialog::Accepted) {
        step.take(*dialog, fields);
        if (fields.Problem().isEmpty())
            return true;
        PostMessageToChannel(WarningLevel, fields.Problem());
        fields = before;
    }
    return false;
}

std::optional<Feature> Ask(const Feature& feature, bool isNew, QWidget* window)
{
    const FeatureDialog* const dialog = FeatureDialogs::Find(*feature.kind);
    if (dialog == nullptr)
        return feature;
    DialogFields fields(feature);
    for (const DialogStep& step : dialog->steps) {
        if (!Run(step, fields, isNew, window))
            return std::nullopt;
    }
    return fields.Result();
}

} // namespace

const FeatureDialog* FeatureDialogs::Find(const FeatureKind& kind)
{
    static const std::vector<FeatureDialog> all = [] {
        std::vector<FeatureDialog> dialogs;
        for (const auto family : {Primitives, Transforms, Mirrors, Arrays}) {
            const std::vector<FeatureDialog> more = family();
            dialogs.insert(dialogs.end(), more.begin(), more.end());
        }
        return dialogs;
    }();
    for (const FeatureDialog& dialog : all) {
        if (std::find(dialog.kinds.begin(), dialog.kinds.end(), kind.word) != dialog.kinds.end())
            return &dialog;
    }
    return nullptr;
}

std::optional<Feature> FeatureDialogs::AskNew(const Feature& feature)
{
    return Ask(feature, true, m_window);
}

std::optional<Feature> FeatureDialogs::AskChanges(const Feature& feature)
{
    return Ask(feature, false, m_window);
}
