#include "SolveTables.h"

namespace {

constexpr int Digits = 17;

QByteArray NumberCell(double value)
{
    return QByteArray::number(value, 'g', Digits);
}

} // namespace

QByteArray ModesCsv(const SolveResult& result)
{
    QByteArray table = "mode,frequency_hz\n";
    int number = 0;
    for (const Mode& mode : result.modes)
        table += QByteArray::number(++number) + ',' + NumberCell(mode.frequency) + '\n';
    return table;
}

QByteArray StaticCsv(const SolveResult& result)
{
    QByteArray table = "quantity,unit,value\n";
    const auto add = [&table](const char* quantity, double value) {
        table += quantity + (',' + NumberCell(value)) + '\n';
    };
    add("max_displacement,mm", result.statics.maximumDisplacement);
    add("max_von_mises,MPa", result.statics.maximumStress);
    add("reaction_x,N", result.reaction[0]);
    add("reaction_y,N", result.reaction[1]);
    add("reaction_z,N", result.reaction[2]);
    return table;
}
