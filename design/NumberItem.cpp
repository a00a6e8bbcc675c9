#include "NumberItem.h"

#include "NumberText.h"

#include <QVariant>

namespace {

bool IsTextRole(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

} // namespace

NumberItem::NumberItem(double value)
    : m_dValue(value)
{
}

QTableWidgetItem* NumberItem::clone() const
{
    return new NumberItem(*this);
}

QVariant NumberItem::data(int role) const
{
    if (m_bNumber && IsTextRole(role))
        return tarn::NumberText(m_dValue);
    return QTableWidgetItem::data(role);
}

void NumberItem::setData(int role, const QVariant& value)
{
    if (m_bNumber && IsTextRole(role)) {
        // Leaving an editor without a change must not change the item.
        if (data(role) == value)
            return;
        m_bNumber = false;
    }
    QTableWidgetItem::setData(role, value);
}

void NumberItem::read(QDataStream& in)
{
    m_bNumber = false;
    QTableWidgetItem::read(in);
}

void NumberItem::write(QDataStream& out) const
{
    // The base class only writes its own data, so turn the number into a text in a copy.
    NumberItem item(*this);
    item.setData(Qt::DisplayRole, QVariant());
    item.setData(Qt::DisplayRole, data(Qt::DisplayRole));
    item.QTableWidgetItem::write(out);
}
