#include "DoeSession.h"

#include "DOEDlg.h"
#include "DesignModel.h"
#include "DesignRun.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "MessageLevel.h"
#include "SamplingGuard.h"
#include "sParaArrayData.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTableWidget>

#include <memory>

namespace {

enum Column
{
    NameColumn,
    TickColumn,
    ButtonColumn
};

} // namespace

DoeSession::DoeSession(DOEDlg& dialog, DesignModel& design, QObject* parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_design(design)
{
    m_design.ExpectRuns();
    if (const auto* const table =
            m_dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Parameters")))
        ConnectRows(*table);
    connect(&m_dialog, &DOEDlg::m_Signal_RegenerateGeo, this, &DoeSession::CompleteRun);
}

DoeSession::~DoeSession() = default;

void DoeSession::ConnectRows(const QTableWidget& table)
{
    const QSet<QString> ticked = DesignRun::Ticked();
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem* const item = table.item(row, NameColumn);
        auto* const check = qobject_cast<QCheckBox*>(table.cellWidget(row, TickColumn));
        auto* const button = qobject_cast<QPushButton*>(table.cellWidget(row, ButtonColumn));
        if (item == nullptr || check == nullptr || button == nullptr)
            continue;
        const QString name = item->text();
        check->setChecked(ticked.contains(name));
        button->setEnabled(check->isChecked());
        connect(check, &QCheckBox::clicked, this, [this, name](bool isTicked) {
            // The dialog leaves the name of a new record empty.
            g_mapParaArrays[name].strName = name;
            Q_EMIT SamplesEdited(isTicked ? tr("Tick %1").arg(Quoted(name))
                                          : tr("Untick %1").arg(Quoted(name)));
        });
        // The dialog shows the sampling dialog when the button is clicked, before this is told.
        const auto guard = std::make_shared<std::unique_ptr<SamplingGuard>>();
        connect(button, &QPushButton::pressed, this,
                [guard, name] { *guard = std::make_unique<SamplingGuard>(name); });
        connect(button, &QPushButton::clicked, this, [this, guard, name] {
            if (*guard != nullptr && (*guard)->Finish())
                Q_EMIT SamplesEdited(tr("Samples of %1").arg(Quoted(name)));
        });
    }
}

void DoeSession::CompleteRun()
{
    const QSet<QString> ticked = DesignRun::Ticked();
    QStringList run;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        if (ticked.contains(name))
            run << QStringLiteral("%1 = %2").arg(name, record.m_strValue);
    }
    const int given = m_design.TakeRun(ticked);
    PostMessageToChannel(InfoLevel,
                         tr("Run taken: %1. The other parameters, %2 of them, have their values "
                            "of the design.")
                             .arg(run.join(QStringLiteral(", ")))
                             .arg(given));
}
