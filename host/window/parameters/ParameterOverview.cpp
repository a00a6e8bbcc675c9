#include "ParameterOverview.h"

#include "CompactTable.h"
#include "GlobalParaMeterMgr.h"
#include "MenuActions.h"
#include "NumberTexts.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

QString TypeWord(int code)
{
    switch (code) {
    case ParametersDef::BoolType:
        return ParameterOverview::tr("Bool");
    case ParametersDef::ScalarType:
        return ParameterOverview::tr("Scalar");
    case ParametersDef::VectorType:
        return ParameterOverview::tr("Vector");
    case ParametersDef::TensorType:
        return ParameterOverview::tr("Tensor");
    default:
        return ParameterOverview::tr("unknown (%1)").arg(code);
    }
}

QString RawValueText(const QString& name, const ParametersDef& record)
{
    if (record.m_nType == ParametersDef::VectorType)
        return QStringLiteral("(%1, %2, %3)")
            .arg(ExactText(record.m_dX), ExactText(record.m_dY), ExactText(record.m_dZ));
    const QVariant raw = GlobalParaMeterMgr::GetParameterRawValue(name);
    return raw.type() == QVariant::Double ? ExactText(raw.toDouble()) : raw.toString();
}

} // namespace

ParameterOverview::ParameterOverview(QWidget* parent)
    : QDockWidget(tr("Stored parameters"), parent)
    , m_table(new QTableWidget(0, DescriptionColumn + 1, this))
{
    setObjectName(QStringLiteral("parameterOverview"));
    setWidget(m_table);

    m_table->setObjectName(QStringLiteral("parameterTable"));
    m_table->setAccessibleName(windowTitle());
    m_table->setHorizontalHeaderLabels({tr("Name"), tr("Type"), tr("Value"), tr("Raw value"),
                                        tr("Expression"), tr("Description")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    MakeCompact(*m_table);
    m_table->horizontalHeader()->setStretchLastSection(true);

    QAction* const removal = NewAction(tr("&Remove parameters"), "action_RemoveParameters", this,
                                       &ParameterOverview::AskForRemoval, QKeySequence::Delete);
    removal->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->addAction(removal);
}

ParameterOverview::~ParameterOverview() = default;

void ParameterOverview::Refresh()
{
    const ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    m_table->clearContents();
    m_table->setRowCount(int(store.size()));
    int row = 0;
    for (const auto& [name, record] : store) {
        const auto show = [this, row](int column, const QString& text) {
            m_table->setItem(row, column, new QTableWidgetItem(text));
        };
        show(NameColumn, name);
        show(TypeColumn, TypeWord(record.m_nType));
        show(ValueColumn, record.m_strValue);
        show(RawValueColumn, RawValueText(name, record));
        show(ExpressionColumn, QString::fromLocal8Bit(record.m_strExpression.c_str()));
        show(DescriptionColumn, record.m_strDescription);
        for (const int column : {ValueColumn, RawValueColumn})
            m_table->item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        ++row;
    }
    m_table->resizeColumnsToContents();
}

void ParameterOverview::AskForRemoval()
{
    QStringList names;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows(NameColumn);
    for (const QModelIndex& row : rows)
        names << row.data().toString();
    if (!names.isEmpty())
        Q_EMIT RemovalWanted(names);
}
