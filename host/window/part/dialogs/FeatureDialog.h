#pragma once

#include "DialogFields.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// How one dialog of the library asks for fields of a feature.
struct DialogStep
{
    std::function<std::unique_ptr<QDialog>()> make;
    std::function<void(const QDialog& dialog, DialogFields& fields)> show;
    std::function<void(const QDialog& dialog, DialogFields& fields)> take;
};

/// A step that shows the fields of @p edits, and takes what the getters return with @p take.
template<class Dialog>
DialogStep StepOf(void (*take)(const Dialog&, DialogFields&), const std::vector<FieldEdit>& edits)
{
    return {[] { return std::make_unique<Dialog>(nullptr); },
            [edits](const QDialog& dialog, DialogFields& fields) {
                for (const FieldEdit& edit : edits)
                    fields.Show(dialog, edit);
            },
            [take, edits](const QDialog& dialog, DialogFields& fields) {
                take(static_cast<const Dialog&>(dialog), fields);
                for (const FieldEdit& edit : edits)
                    fields.TakeExpression(dialog, edit);
            }};
}

/// The dialogs that ask for the fields of a kind, one after the other.
struct FeatureDialog
{
    std::vector<QLatin1String> kinds; ///< Several, if the modes of the dialog are kinds.
    std::vector<DialogStep> steps;
    QLatin1String name;          ///< Of the menu action, if there are several kinds.
    const char* title = nullptr; ///< Of the menu action; PartActions translates it.

    FeatureDialog() = default;
    FeatureDialog(const char* kind, std::vector<DialogStep> dialogSteps)
        : kinds{QLatin1String(kind)}
        , steps(std::move(dialogSteps))
    {
    }
};
