#pragma once

#include "Feature.h"

#include <optional>
#include <vector>

struct FeatureDialog;
class QWidget;

/// Asks for the fields of features with the dialogs of the library. Each family of dialogs has a
/// file of its own.
///
/// The dialog of an existing feature shows the values of its expressions; only fields whose value
/// the user changes are replaced. The message channel reports a direction of length 0, and the
/// dialog stays open; it also reports values out of range, and the dialog opens again unchanged.
class FeatureDialogs
{
public:
    /// Dialogs belong to @p window.
    explicit FeatureDialogs(QWidget* window)
        : m_window(window)
    {
    }

    /// The dialog for @p kind. Null if it has none; its fields are then edited in the table.
    static const FeatureDialog* Find(const FeatureKind& kind);

    /// Asks for the fields of a new feature; fields without a line edit keep their texts. The
    /// mirror dialog may change the kind to another mirror. Nothing if the user cancels.
    std::optional<Feature> AskNew(const Feature& feature);

    /// Asks for changes of @p feature. Nothing if the user cancels.
    std::optional<Feature> AskChanges(const Feature& feature);

private:
    static std::vector<FeatureDialog> Primitives();
    static std::vector<FeatureDialog> Transforms();
    static std::vector<FeatureDialog> Mirrors();
    static std::vector<FeatureDialog> Arrays();

    QWidget* m_window;
};
