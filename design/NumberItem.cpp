#include "NumberItem.h"

#include "NumberText.h"

#include <QVariant>

#include <array>
#include <utility>

namespace {

bool IsTextRole(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

// A place for an item, or, while it is free, the way to the next free place.
union Place {
    Place* next;
    alignas(NumberItem) unsigned char item[sizeof(NumberItem)];
};

struct Block
{
    Block* next;
    std::array<Place, 4096> places;
};

Block* g_blocks = nullptr;
Place* g_freePlaces = nullptr;
std::size_t g_usedPlaces = 0;

// The first place of a new block, which leads to all others.
Place* NewPlaces()
{
    auto* const block = new Block;
    block->next = g_blocks;
    g_blocks = block;
    Place* first = nullptr;
    for (Place& place : block->places) {
        place.next = first;
        first = &place;
    }
    return first;
}

void ReleaseBlocks()
{
    while (g_blocks != nullptr)
        delete std::exchange(g_blocks, g_blocks->next);
    g_freePlaces = nullptr;
}

} // namespace

void* NumberItem::operator new(std::size_t)
{
    if (g_freePlaces == nullptr)
        g_freePlaces = NewPlaces();
    ++g_usedPlaces;
    return std::exchange(g_freePlaces, g_freePlaces->next);
}

void NumberItem::operator delete(void* place)
{
    auto* const freed = static_cast<Place*>(place);
    freed->next = g_freePlaces;
    g_freePlaces = freed;
    if (--g_usedPlaces == 0)
        ReleaseBlocks();
}

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
