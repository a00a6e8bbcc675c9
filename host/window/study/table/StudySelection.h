#pragma once

#include <QObject>

#include <cstddef>
#include <vector>

/// The runs that the user has selected, in the table or in any plot: all of them show this one set.
/// Runs are given as rows of the ResultColumns.
class StudySelection : public QObject
{
    Q_OBJECT

public:
    explicit StudySelection(QObject* parent = nullptr);
    ~StudySelection() override;

    /// In ascending order.
    const std::vector<int>& Rows() const { return m_rows; }
    bool Contains(int row) const
    {
        return std::size_t(row) < m_isSelected.size() && m_isSelected[std::size_t(row)] != 0;
    }
    void Set(std::vector<int> rows);
    void Clear() { Set({}); }

Q_SIGNALS:
    void Changed();

private:
    std::vector<int> m_rows;
    std::vector<char> m_isSelected; // By row.
};
