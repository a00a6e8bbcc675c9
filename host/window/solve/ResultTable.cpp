#include "ResultTable.h"

#include "CsvText.h"
#include "NumberTexts.h"
#include "SolveReport.h"

#include <QCoreApplication>

#include <optional>

namespace {

constexpr double KilogramsPerTonne = 1000.0;
constexpr int MassDecimals = 4;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ResultTable)
};

/// A row of a table without modes.
struct Quantity
{
    QString name;
    const char* key; // In the file.
    double value = 0.0;
    const char* unit;
    std::optional<Vector3> place;
};

std::vector<Quantity> QuantitiesOf(const SolveReport& report)
{
    if (report.kind != SolveKind::Static)
        return {{Texts::tr("Nodes"), "nodes", double(report.nodes), "", {}},
                {Texts::tr("Elements"), "elements", double(report.elements), "", {}},
                {Texts::tr("Worst element"), "worst_element", report.worst, "", report.worstPlace}};
    return {{Texts::tr("Greatest displacement"), "max_displacement", report.displacement.value,
             "mm", report.displacement.place},
            {Texts::tr("Greatest von Mises stress"), "max_von_mises", report.stress.value, "MPa",
             report.stress.place},
            {Texts::tr("Support force along x"), "reaction_x", report.reaction[0], "N", {}},
            {Texts::tr("Support force along y"), "reaction_y", report.reaction[1], "N", {}},
            {Texts::tr("Support force along z"), "reaction_z", report.reaction[2], "N", {}}};
}

} // namespace

QString PlaceText(const Vector3& place)
{
    constexpr int Digits = 4;
    const auto text = [](double value) {
        return QString::number(value, 'g', Digits);
    };
    return QStringLiteral("(%1, %2, %3)").arg(text(place[0]), text(place[1]), text(place[2]));
}

ResultTable::ResultTable(const SolveReport& report)
{
    if (report.kind == SolveKind::Vibration)
        AddModes(report);
    else
        AddQuantities(report);
}

void ResultTable::AddModes(const SolveReport& report)
{
    headings = QStringList{Texts::tr("Mode"), Texts::tr("Frequency (Hz)"), Texts::tr("x (kg)"),
                           Texts::tr("y (kg)"), Texts::tr("z (kg)")};
    const QString mass =
        Texts::tr("Effective mass of the motion in this direction; rotations about "
                  "the axes have no column");
    hints = QStringList{QString(), QString(), mass, mass, mass};
    csv = QStringLiteral("mode,frequency_hz,mass_x_kg,mass_y_kg,mass_z_kg\n");
    int number = 0;
    for (const Mode& mode : report.modes) {
        const QString first = QString::number(++number);
        QStringList shown{first, ShortText(mode.frequency)};
        QStringList exact{first, ExactText(mode.frequency)};
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double kilograms = mode.effectiveMass[axis] * KilogramsPerTonne;
            shown << QString::number(kilograms, 'f', MassDecimals);
            exact << ExactText(kilograms);
        }
        rows.push_back(shown);
        csv += CsvLine(exact);
    }
}

void ResultTable::AddQuantities(const SolveReport& report)
{
    headings = QStringList{Texts::tr("Quantity"), Texts::tr("Value"), Texts::tr("Place (mm)")};
    csv = QStringLiteral("quantity,unit,value,x_mm,y_mm,z_mm\n");
    for (const Quantity& quantity : QuantitiesOf(report)) {
        const QString unit = QString::fromLatin1(quantity.unit);
        const std::optional<Vector3>& place = quantity.place;
        rows.push_back({quantity.name,
                        (ShortText(quantity.value) + QLatin1Char(' ') + unit).trimmed(),
                        place ? PlaceText(*place) : QString()});
        QStringList exact{QString::fromLatin1(quantity.key), unit, ExactText(quantity.value)};
        for (std::size_t axis = 0; axis < 3; ++axis)
            exact << (place ? ExactText((*place)[axis]) : QString());
        csv += CsvLine(exact);
    }
}

QString MeshText(const SolveReport& report)
{
    return Texts::tr("Mesh: %1 nodes, %2 elements; the Jacobian of the worst element falls to %3 "
                     "of its greatest value, near %4 mm")
        .arg(report.nodes)
        .arg(report.elements)
        .arg(QString::number(report.worst, 'g', 3), PlaceText(report.worstPlace));
}
