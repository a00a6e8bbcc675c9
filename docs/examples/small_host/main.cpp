#include <QApplication>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <Standard_Failure.hxx>

#include <DrawerOutput.h>
#include <ExtrudInputDlg.h>
#include <GlobalParaMeterMgr.h>
#include <ParameterEditor.h>
#include <TarnGUICommonData.h>

#include <clocale>

namespace {

enum Level
{
    InfoLevel,
    ErrorLevel
};

// Catches kernel errors from event handlers: the dialog that caused one stays open.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const Standard_Failure& failure) { // not a std::exception
            DrawerOutput::GetInstance()->EmitMessage2MessageWidget(
                ErrorLevel, "The kernel reported an error: %s", failure.DynamicType()->Name());
            return true;
        }
    }
};

class Window : public QMainWindow
{
public:
    Window()
    {
        auto* const messages = new QPlainTextEdit(this);
        messages->setReadOnly(true);
        setCentralWidget(messages);
        connect(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage, messages,
                [messages](int level, const QString& text) {
                    messages->appendPlainText(QStringLiteral("%1: %2").arg(level).arg(text));
                });

        QMenu* const menu = menuBar()->addMenu(QStringLiteral("&Design"));
        menu->addAction(QStringLiteral("&Parameters"), this, &Window::EditParameters);
        menu->addAction(QStringLiteral("&Extrude"), this, &Window::Extrude);
    }

private:
    void EditParameters()
    {
        ParameterEditor editor(this);
        editor.m_Slot_RefreshGUI(); // The table opens empty.
        connect(&editor, &ParameterEditor::m_Signal_Apply, this, &Window::Rebuild);
        editor.exec();
    }

    void Rebuild()
    {
        const QString name = QStringLiteral("length");
        DrawerOutput::GetInstance()->EmitMessage2MessageWidget(
            InfoLevel, "The part is %g long",
            GlobalParaMeterMgr::GetParameterRawValue(name).toDouble());
    }

    void Extrude()
    {
        ExtrudInputDlg dialog(this);
        if (dialog.exec() != QDialog::Accepted)
            return;
        const gp_Dir direction = dialog.GetExtrudeDirection();
        DrawerOutput::GetInstance()->EmitMessage2MessageWidget(
            InfoLevel, "Extruding by %g along (%g, %g, %g)", dialog.GetHeightValue(), direction.X(),
            direction.Y(), direction.Z());
    }
};

} // namespace

int main(int argc, char** argv)
{
    Application application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // Not earlier: the constructor above sets the user's locale.
    TarnGUICommonData::InstallTranslations(QLocale()); // Otherwise two titles are Chinese.

    ParametersDef length;
    length.m_strName = QStringLiteral("length");
    length.m_nType = ParametersDef::ScalarType;
    length.m_strValue = QStringLiteral("20");
    length.m_dValue = 20.0;
    GlobalParaMeterMgr::AddParameter(length.m_strName, length);

    Window window;
    window.show();
    return Application::exec();
}
