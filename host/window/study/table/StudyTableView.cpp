#include "StudyTableView.h"

#include "CompactTable.h"
#include "StudySelection.h"
#include "StudyTable.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int LeastCharacters = 9; // Of a column.

} // namespace

StudyTableView::StudyTableView(StudyTable& table, StudySelection& selection, QWidget* parent)
    : QTableView(parent)
    , m_table(table)
    , m_selection(selection)
{
    setObjectName(QStringLiteral("studyTableView"));
    setAccessibleName(tr("Results of the study"));
    MakeCompact(*this);
    // Before the model: each row of hundreds of thousands would be measured.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    // So that the arrow of the sorted column leaves room for a short name.
    horizontalHeader()->setMinimumSectionSize(LeastCharacters * fontMetrics().averageCharWidth());
    setModel(&table);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    setSortingEnabled(true);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &StudyTableView::TakeSelection);
    connect(&m_selection, &StudySelection::Changed, this, &StudyTableView::FollowSelection);
    // The view's own selection is of places, at which other runs stand now.
    connect(&m_table, &StudyTable::RowsChanged, this, [this] {
        const QScopedValueRollback<bool> taking(m_isTaking, true);
        clearSelection();
    });
    connect(&m_table, &QAbstractItemModel::modelReset, this,
            [this] { horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder); });
}

StudyTableView::~StudyTableView() = default;

void StudyTableView::TakeSelection()
{
    if (m_isTaking)
        return;
    const QScopedValueRollback<bool> taking(m_isTaking, true);
    std::vector<int> rows;
    const QItemSelection selected = selectionModel()->selection();
    for (const QItemSelectionRange& range : selected) {
        for (int place = range.top(); place <= range.bottom(); ++place)
            rows.push_back(m_table.Rows()[std::size_t(place)]);
    }
    m_selection.Set(std::move(rows));
}

// The table paints the shared selection, so the view's own one would only be in the way.
void StudyTableView::FollowSelection()
{
    if (m_isTaking)
        return;
    const QScopedValueRollback<bool> taking(m_isTaking, true);
    clearSelection();
    const std::vector<int>& rows = m_table.Rows();
    const auto first = std::find_if(rows.begin(), rows.end(),
                                    [this](int row) { return m_selection.Contains(row); });
    if (first != rows.end())
        scrollTo(m_table.index(int(first - rows.begin()), 0));
}
