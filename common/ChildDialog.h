#pragma once

#include <QDialog>
#include <QPointer>

#include <utility>

namespace tarn {

/// A dialog that another one runs over itself, and that ends with it.
///
/// Not on the stack: the host may destroy the parent, and with it the dialog, while it runs.
template<class Dialog>
class ChildDialog
{
public:
    /// Makes the dialog; one of the arguments is its parent.
    template<class... Arguments>
    explicit ChildDialog(Arguments&&... arguments)
        : m_dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ~ChildDialog() { delete m_dialog; }
    ChildDialog(const ChildDialog&) = delete;
    ChildDialog& operator=(const ChildDialog&) = delete;

    /// Whether the user accepted. After false the dialog may be gone, and its parent with it.
    bool RunToAccept() { return m_dialog->exec() == QDialog::Accepted && m_dialog != nullptr; }

    /// Null when the dialog is gone.
    Dialog* Get() const { return m_dialog; }
    Dialog* operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace tarn
