#pragma once

#include <QToolButton>

#include <vector>

class ResultColumns;

/// A choice of several number columns in a menu.
class ColumnPicker : public QToolButton
{
    Q_OBJECT

public:
    /// Chooses at most @p limit columns by itself.
    ColumnPicker(int limit, QWidget* parent);
    ~ColumnPicker() override;

    /// Lists the @p columns. Other names than before choose the ones that vary: of parameters and
    /// results about as many.
    void Refresh(const ResultColumns& columns);
    /// In the order of the table.
    std::vector<int> Chosen() const;

Q_SIGNALS:
    void Changed();

private:
    int m_limit;
};
