#include "SampleStudy.h"

#include "ResultColumns.h"
#include "StudyTable.h"

void FillSampleStudy(StudyTable& table)
{
    ResultColumns columns({QStringLiteral("bore_diameter"), QStringLiteral("thickness")},
                          {QStringLiteral("mass_kg"), QStringLiteral("f1_hz")});
    constexpr int Runs = 150;
    // Even in the range and without a pattern: multiples of the golden ratio.
    const auto share = [](int run, double ratio) {
        return run * ratio - int(run * ratio);
    };
    for (int run = 1; run <= Runs; ++run) {
        const double bore = 60.0 + 20.0 * share(run, 0.7548776662466927);
        const double thickness = 16.0 + 8.0 * share(run, 0.5698402909980532);
        const double mass = 7.85e-6 * 0.785 * thickness * (40000.0 - bore * bore);
        const double frequency = 170.0 * thickness + 0.12 * bore * bore;
        std::vector<QByteArray> cells = {QByteArray::number(run)};
        for (const double number : {bore, thickness, mass, frequency})
            cells.push_back(QByteArray::number(number));
        cells.emplace_back("ok");
        cells.emplace_back();
        columns.Take(cells);
    }
    table.Take(columns);
}
