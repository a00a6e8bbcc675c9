#pragma once

#include <QComboBox>

#include <vector>

class ResultColumns;

/// The number columns whose values differ between runs, parameters first.
std::vector<int> VaryingColumns(const ResultColumns& columns);
/// The first column of a result that varies, else the first of a result, else 0.
int FirstResult(const ResultColumns& columns);

/// A choice of a number column, by its name.
class ColumnBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ColumnBox(QWidget* parent);
    ~ColumnBox() override;

    /// Lists the @p columns; the chosen one stays if it is among them, otherwise @p wanted is.
    void Refresh(const ResultColumns& columns, int wanted);
    /// The chosen column; below 0 for none.
    int Column() const { return currentIndex(); }
};
