#include <QApplication>
#include <QFile>
#include <QTimer>

#include <GlobalParaMeterMgr.h>
#include <MoveInput.h>
#include <ParameterEditor.h>
#include <TarnGUICommonData.h>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (!TarnGUICommonData::InstallTranslations(QLocale(QStringLiteral("zh_CN"))))
        return 1;
    const MoveInput translated(nullptr);
    if (translated.windowTitle() != QStringLiteral("移动参数输入") ||
        !QFile::exists(TarnGUICommonData::SystemMaterials()))
        return 2;
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
