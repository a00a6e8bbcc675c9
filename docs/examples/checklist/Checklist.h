// What every host does, as functions to copy. The checklist of the manual shows them.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <gp_Dir.hxx>

#include <AttributeCommonMgr.h>
#include <DOEDlg.h>
#include <DesignRun.h>
#include <GlobalParaMeterMgr.h>
#include <KVMaterialData.h>
#include <KVPropertyData.h>
#include <ParameterEvaluator.h>
#include <SubShapeMeshParameterDlg.h>
#include <TarnGUICommonData.h>
#include <sParaArrayData.h>

#include <clocale>
#include <cmath>
#include <string>

inline void SetUpTheProcess()
{
    std::setlocale(LC_NUMERIC, "C");
    QFont::insertSubstitution(QStringLiteral("微软雅黑"), QStringLiteral("Noto Sans CJK SC"));
    TarnGUICommonData::InstallTranslations(QLocale());
}

inline bool EnterFolder(const QString& folder)
{
    const QString library = QStringLiteral("SysMaterial.xml");
    return QDir::setCurrent(folder) &&
           (QFile::exists(library) || QFile::copy(TarnGUICommonData::SystemMaterials(), library));
}

inline QStringList OpenTheStores()
{
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    g_mapParaArrays.clear();
    AttributeCommonMgr::GetInstance()->Clear();
    KVMaterialData& materials = *KVMaterialData::GetInstance();
    materials.ClearInfo();
    KVPropertyData& properties = *KVPropertyData::GetInstance();
    properties.Clear();

    QStringList refused;
    const auto check = [&refused](const QString& file, int result) {
        if (result != 0 && QFile::exists(file))
            refused << file;
    };
    check(QStringLiteral("SysMaterial.xml"), materials.ReadXML("SysMaterial.xml", MATERIAL_SYSTEM));
    check(QStringLiteral("UserMaterial.xml"), materials.ReadXML("UserMaterial.xml", MATERIAL_USER));
    check(QStringLiteral("ElementProperty.xml"), properties.ReadXML("ElementProperty.xml"));
    return refused;
}

inline bool IsLength(double value)
{
    return std::isfinite(value) && value > 0.0;
}

inline bool IsDirection(const gp_Dir& direction)
{
    return std::isfinite(direction.X() + direction.Y() + direction.Z());
}

inline void PutOver(QDialog& dialog, QWidget& window)
{
    dialog.setParent(&window, dialog.windowFlags());
}

inline void ConnectButtons(SubShapeMeshParameterDlg& dialog)
{
    QObject::connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(dialog.ui.pushButton_Cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
}

inline void RenameSupport(const std::string& before, const std::string& after)
{
    AttributeCommonMgr::GetInstance()->RemoveName(before);
    AttributeCommonMgr::GetInstance()->AddName(after);
}

inline QString ModulusOf(const QString& material)
{
    const auto* const record = KVMaterialData::GetInstance()->GetMaterialInfo(material);
    if (record == nullptr)
        return QString();
    return record->m_nType == MATERIAL_SYSTEM ? record->m_strLibElasticModulus
                                              : record->m_strElasticModulus;
}

inline QStringList SetParameter(const QString& name, double value)
{
    ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters.at(name);
    record.m_dValue = value;
    record.m_varRawValue = value;
    record.m_strValue = QString::number(value);
    QStringList messages;
    for (const QString& message : ParameterEvaluator::Evaluate().messages)
        messages << message;
    return messages;
}

inline void ShowTicks(const DOEDlg& dialog)
{
    const QSet<QString> ticked = DesignRun::Ticked();
    const auto* const table =
        dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Parameters"));
    for (int row = 0; row < table->rowCount(); ++row) {
        const bool isTicked = ticked.contains(table->item(row, 0)->text());
        qobject_cast<QCheckBox*>(table->cellWidget(row, 1))->setChecked(isTicked);
        table->cellWidget(row, 2)->setEnabled(isTicked); // "Set Array"
    }
}

inline bool IsSplit(const QString& pathOfSolver)
{
    return QProcess::splitCommand(pathOfSolver) != QStringList(pathOfSolver);
}
