// A plug-in that is the only user of the library in its program.
#include <QTimer>

#include <ParameterEditor.h>
#include <PosInputDlg.h>

extern "C" Q_DECL_EXPORT void ShowDialogs()
{
    ParameterEditor editor(nullptr);
    QTimer::singleShot(0, &editor, SLOT(m_Slot_Cancel()));
    editor.exec();

    // Lives as long as the program.
    PosInputDlg::GetInstance()->show();
    PosInputDlg::GetInstance()->hide();
}
