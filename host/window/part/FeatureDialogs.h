#pragma once

#include "Feature.h"

#include <optional>

class QWidget;

/// Runs the library's geometry dialogs for features: fields go into the dialog, what its getters
/// give comes back.
///
/// An edited feature's dialog shows the numbers of its expressions; only fields whose number the
/// user changed are replaced, so that the other expressions survive. The three components of a
/// direction count as one number, because the dialogs give them normalised. A direction of length 0
/// is told in the message channel, by HostApplication, and the dialog stays open; so are values out
/// of range, and the dialog opens again as it was.
class FeatureDialogs
{
public:
    /// Dialogs belong to @p window.
    explicit FeatureDialogs(QWidget* window)
        : m_window(window)
    {
    }

    /// Whether the library has a dialog for @p kind; the other kinds are edited by their fields.
    static bool HasDialogFor(FeatureKind kind);

    /// Asks for the fields of a feature that does not exist yet: what the dialog does not ask keeps
    /// its default from @p feature. The mirror dialog may change the kind among the three mirrors.
    /// Nothing when the user cancels.
    std::optional<Feature> AskNew(const Feature& feature);

    /// Asks for changes of @p feature. Nothing when the user cancels.
    std::optional<Feature> AskChanges(const Feature& feature);

private:
    QWidget* m_window;
};
