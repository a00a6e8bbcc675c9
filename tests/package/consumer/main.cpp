#include <QApplication>
#include <QTimer>

#include <GlobalParaMeterMgr.h>
#include <ParameterEditor.h>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ParametersDef record;
    record.m_strName = QStringLiteral("a");
    record.m_nType = ParametersDef::ScalarType;
    record.m_strValue = QStringLiteral("2");
    GlobalParaMeterMgr::AddParameter(record.m_strName, record);

    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    QTimer::singleShot(0, &editor, SLOT(m_Slot_OK()));
    editor.exec();
    std::printf("a = %g\n",
                GlobalParaMeterMgr::GetParameterRawValue(QStringLiteral("a")).toDouble());
    return 0;
}
