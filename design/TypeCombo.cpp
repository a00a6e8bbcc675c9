#include "TypeCombo.h"

#include "ParameterEditor.h"
#include "ParametersDef.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>
#include <array>

namespace {

// The stored type code of each entry, in the order of the entries.
constexpr std::array<int, 4> TypeCodes = {ParametersDef::ScalarType, ParametersDef::VectorType,
                                          ParametersDef::TensorType, ParametersDef::BoolType};

quint64 s_created = 0;

} // namespace

// A child of the table from the start: a combo box that inherits another font later builds its
// drop-down list immediately.
TypeCombo::TypeCombo(const QTableWidget& table, int column)
    : QComboBox(table.viewport())
    , m_number(++s_created)
{
    setAccessibleName(ParameterEditor::tr("Type"));
    // With an explicit size it is not measured when shown; the table's layout sets the real size.
    resize(table.columnWidth(column), table.verticalHeader()->defaultSectionSize());
}

void TypeCombo::Offer(int code)
{
    const QSignalBlocker quiet(this); // only a user changes the type
    clear();
    addItems({ParameterEditor::tr("Scalar"), ParameterEditor::tr("Vector"),
              ParameterEditor::tr("Tensor"), ParameterEditor::tr("Bool")});
    const auto* const found = std::find(TypeCodes.begin(), TypeCodes.end(), code);
    setCurrentIndex(found != TypeCodes.end() ? int(found - TypeCodes.begin()) : 0);
}

int TypeCombo::TypeCode(int index)
{
    return index >= 0 && index < int(TypeCodes.size()) ? TypeCodes[std::size_t(index)]
                                                       : int(ParametersDef::ScalarType);
}
