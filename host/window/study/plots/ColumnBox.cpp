#include "ColumnBox.h"

#include "ResultColumns.h"

#include <algorithm>

std::vector<int> VaryingColumns(const ResultColumns& columns)
{
    std::vector<int> varying;
    for (int column = 0; column < columns.Names().size(); ++column) {
        const std::vector<double>& values = columns.Column(column);
        // A value that is missing equals none.
        const auto first =
            std::find_if(values.begin(), values.end(), [](double value) { return value == value; });
        const bool varies = std::any_of(first, values.end(), [&first](double value) {
            return value == value && value != *first;
        });
        if (varies)
            varying.push_back(column);
    }
    return varying;
}

int FirstResult(const ResultColumns& columns)
{
    const std::vector<int> varying = VaryingColumns(columns);
    const auto found = std::find_if(varying.begin(), varying.end(), [&columns](int column) {
        return column >= columns.ParameterCount();
    });
    if (found != varying.end())
        return *found;
    return columns.Names().size() > columns.ParameterCount() ? columns.ParameterCount() : 0;
}

ColumnBox::ColumnBox(QWidget* parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

ColumnBox::~ColumnBox() = default;

void ColumnBox::Refresh(const ResultColumns& columns, int wanted)
{
    QStringList listed;
    for (int index = 0; index < count(); ++index)
        listed << itemText(index);
    if (listed == columns.Names())
        return;
    const int kept = columns.Names().indexOf(currentText());
    clear();
    addItems(columns.Names());
    setCurrentIndex(kept >= 0 ? kept : wanted);
}
