#include "ModalLoop.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>

namespace {

// The state of a dialog that must survive from one run to the next. The first run creates it as a
// child of the dialog.
class ModalRun : public QObject
{
    Q_OBJECT

public:
    explicit ModalRun(QDialog& dialog);

    int Exec();
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TakeModality();
    void RestoreModality();

    QDialog& m_dialog;
    QEventLoop* m_loop = nullptr;
    bool m_wasModal = false;
    bool m_isUnwound = false;
};

ModalRun::ModalRun(QDialog& dialog)
    : QObject(&dialog)
    , m_dialog(dialog)
{
    dialog.installEventFilter(this);
}

int ModalRun::Exec()
{
    if (m_loop != nullptr) {
        qWarning("QDialog::exec: Recursive call detected");
        return -1;
    }

    // A slot may destroy the dialog, and this object with it.
    const QPointer<QDialog> dialog = &m_dialog;
    const bool deleteOnClose = dialog->testAttribute(Qt::WA_DeleteOnClose);
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    if (!m_isUnwound)
        m_wasModal = dialog->testAttribute(Qt::WA_ShowModal);
    m_isUnwound = false;
    TakeModality();
    dialog->setResult(QDialog::Rejected);

    QEventLoop loop;
    m_loop = &loop;
    try {
        dialog->show();
        loop.exec(QEventLoop::DialogExec);
    } catch (...) {
        if (dialog) {
            m_loop = nullptr;
            dialog->setAttribute(Qt::WA_DeleteOnClose, deleteOnClose);
            // A window that stops being modal while visible blocks the other windows forever.
            m_isUnwound = dialog->isVisible();
            if (!m_isUnwound)
                RestoreModality();
        }
        throw;
    }
    if (!dialog)
        return QDialog::Rejected;

    m_loop = nullptr;
    RestoreModality();
    const int result = dialog->result();
    if (deleteOnClose)
        delete dialog.data();
    return result;
}

bool ModalRun::eventFilter(QObject* watched, QEvent* event)
{
    // Every hide() and close() sends this, but the window system's hiding does not.
    if (watched == &m_dialog && event->type() == QEvent::HideToParent) {
        if (m_loop != nullptr) {
            m_loop->exit();
        } else if (m_isUnwound) {
            m_isUnwound = false;
            RestoreModality();
        }
    }
    return false;
}

void ModalRun::TakeModality()
{
    m_dialog.setAttribute(Qt::WA_ShowModal, true);
    // An earlier open() blocks only the parent. done() undoes it unless the attribute is set.
    if (m_dialog.windowModality() == Qt::WindowModal &&
        !m_dialog.testAttribute(Qt::WA_SetWindowModality)) {
        m_dialog.setWindowModality(Qt::ApplicationModal);
        m_dialog.setAttribute(Qt::WA_SetWindowModality, false);
    }
}

void ModalRun::RestoreModality()
{
    // This sets the attribute that keeps done() from undoing an open() called in between.
    if (!m_wasModal)
        m_dialog.setWindowModality(Qt::NonModal);
}

} // namespace

int tarn::RunModalLoop(QDialog& dialog)
{
    auto* run = dialog.findChild<ModalRun*>(QString(), Qt::FindDirectChildrenOnly);
    if (run == nullptr)
        run = new ModalRun(dialog);
    return run->Exec();
}

#include "ModalLoop.moc"
