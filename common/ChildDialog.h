#pragma once

#include <QDialog>
#include <QPointer>

#include <utility>

namespace tarn {

/// A dialog that another dialog runs modally and owns.
///
/// It is on the heap because the host may destroy the parent, and with it this dialog, while it
/// runs.
template<class Dialog>
class ChildDialog
{
public:
    /// Constructs the dialog from @p arguments, one of which is its parent.
    template<class... Arguments>
    explicit ChildDialog(Arguments&&... arguments)
        : m_dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ~ChildDialog() { delete m_dialog; }
    ChildDialog(const ChildDialog&) = delete;
    ChildDialog& operator=(const ChildDialog&) = delete;

    /// Runs the dialog and returns whether the user accepted it. After false, the dialog and its
    /// parent may have been destroyed.
    bool RunToAccept() { return m_dialog->exec() == QDialog::Accepted && m_dialog != nullptr; }

    /// The dialog; null if it has been destroyed.
    Dialog* Get() const { return m_dialog; }
    Dialog* operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace tarn
