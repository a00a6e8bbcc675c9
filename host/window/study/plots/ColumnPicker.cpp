#include "ColumnPicker.h"

#include "ColumnBox.h"
#include "ResultColumns.h"

#include <QMenu>

#include <algorithm>

ColumnPicker::ColumnPicker(int limit, QWidget* parent)
    : QToolButton(parent)
    , m_limit(limit)
{
    setObjectName(QStringLiteral("columnPicker"));
    setText(tr("Columns"));
    setPopupMode(QToolButton::InstantPopup);
    setMenu(new QMenu(this));
    connect(menu(), &QMenu::triggered, this, &ColumnPicker::Changed);
}

ColumnPicker::~ColumnPicker() = default;

void ColumnPicker::Refresh(const ResultColumns& columns)
{
    QStringList listed;
    const QList<QAction*> before = menu()->actions();
    for (const QAction* const action : before)
        listed << action->data().toString();
    // The first runs may not show yet what varies.
    const std::vector<int> varying = VaryingColumns(columns);
    const bool isChosen = !Chosen().empty();
    if (listed == columns.Names() && (isChosen || varying.empty()))
        return;

    int parameters = 0;
    int results = 0;
    menu()->clear();
    for (int column = 0; column < columns.Names().size(); ++column) {
        const bool isParameter = column < columns.ParameterCount();
        int& chosen = isParameter ? parameters : results;
        const bool isWanted =
            chosen < m_limit / 2 && std::binary_search(varying.begin(), varying.end(), column);
        chosen += isWanted ? 1 : 0;
        // An ampersand in a name is none of a menu.
        QString text = columns.Names()[column];
        QAction* const action =
            menu()->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setData(columns.Names()[column]);
        action->setCheckable(true);
        action->setChecked(isWanted);
    }
}

std::vector<int> ColumnPicker::Chosen() const
{
    std::vector<int> chosen;
    const QList<QAction*> actions = menu()->actions();
    for (int column = 0; column < actions.size(); ++column) {
        if (actions[column]->isChecked())
            chosen.push_back(column);
    }
    return chosen;
}
