#pragma once

#include <QComboBox>

class QTableWidget;

/// The combo box in a cell of the parameter editor that offers the types of a parameter.
class TypeCombo : public QComboBox
{
public:
    /// Created as a child of the cells of @p table, at the size of the cells in @p column.
    TypeCombo(const QTableWidget& table, int column);

    /// Offers the four types again, with the one of the stored type code @p code as the current
    /// one. An unknown code counts as Scalar.
    void Offer(int code);

    /// The stored type code of the entry at @p index; Scalar if there is no such type.
    static int TypeCode(int index);

    /// Grows from one combo box to the next.
    quint64 Number() const { return m_number; }

private:
    quint64 m_number;
};
