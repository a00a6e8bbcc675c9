#include "Work.h"

#include "BodyCheck.h"
#include "BodyVolumes.h"
#include "Dice.h"
#include "FeatureBuilder.h"
#include "RandomList.h"
#include "StepFile.h"
#include "StepText.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <Standard_Failure.hxx>
#include <TopoDS_Shape.hxx>

#include <cmath>

namespace {

struct Moments
{
    double volume = 0.0;
    double area = 0.0;
    gp_Pnt centre;
};

Moments MomentsOf(const TopoDS_Shape& shape)
{
    constexpr double Accuracy = 1e-9;
    GProp_GProps volume;
    BRepGProp::VolumeProperties(shape, volume, Accuracy);
    GProp_GProps area;
    BRepGProp::SurfaceProperties(shape, area, Accuracy);
    return {volume.Mass(), area.Mass(), volume.CentreOfMass()};
}

QString Result(const char* word, const QString& reason = {})
{
    return QLatin1String(word) + QLatin1Char(' ') + reason;
}

QString Compared(const TopoDS_Shape& part, const TopoDS_Shape& read)
{
    constexpr double Tolerance = 2e-6; // Twice that of the export, whose integration is coarser.
    const Moments a = MomentsOf(part);
    const Moments b = MomentsOf(read);
    const double volume = std::abs(a.volume - b.volume) / a.volume;
    const double area = std::abs(a.area - b.area) / a.area;
    const double centre = a.centre.Distance(b.centre) / std::sqrt(a.area);
    if (volume <= Tolerance && area <= Tolerance && centre <= Tolerance)
        return Result("same");
    return Result(
        "different",
        QStringLiteral("volume by %1, area by %2, centre by %3").arg(volume).arg(area).arg(centre));
}

void DamageOnce(QByteArray& text, Dice& dice)
{
    const int place = dice.Below(text.size() - 1);
    const int lineBegin = text.lastIndexOf('\n', place) + 1;
    const int lineEnd = text.indexOf('\n', place) + 1;
    const QByteArray line = text.mid(lineBegin, lineEnd - lineBegin);
    switch (dice.Below(6)) {
    case 0:
        text[place] = char(dice.Below(256));
        break;
    case 1:
        text[place] = "0123456789.#$*,()'"[dice.Below(18)];
        break;
    case 2:
        text.remove(lineBegin, line.size());
        break;
    case 3:
        text.insert(dice.Below(text.size()), line);
        break;
    case 4:
        text.remove(place, 1 + dice.Below(20));
        break;
    default: {
        // Another entity, or none.
        const int reference = text.indexOf('#', place);
        int end = reference + 1;
        while (reference >= 0 && end < text.size() && text[end] >= '0' && text[end] <= '9')
            ++end;
        if (reference >= 0)
            text.replace(reference, end - reference,
                         dice.OneIn(4) ? "$" : "#" + QByteArray::number(dice.Below(900)));
        break;
    }
    }
}

// The file without what the kernel writes differently each time: how many it has written, and when.
QByteArray ReproducibleText(const TopoDS_Shape& shape)
{
    static const QRegularExpression changing("translator [\\d. ]+|\\d{4}-\\d\\d-\\d\\dT[\\d:]+");
    return QString::fromLatin1(StepText(shape)).remove(changing).toLatin1();
}

QByteArray DamagedText(unsigned seed)
{
    Dice dice(seed);
    QByteArray text;
    while (text.isEmpty()) {
        try {
            const FeatureList list = RandomList(unsigned(dice.Below(200)));
            text = ReproducibleText(FeatureBuilder::Build(list).shape);
        } catch (const std::exception&) {
            continue; // Not each list can be built.
        }
    }
    const int damages = 1 + dice.Below(5);
    for (int i = 0; i < damages; ++i)
        DamageOnce(text, dice);
    return text;
}

} // namespace

QString RoundTrip(unsigned seed)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("part.step");
    TopoDS_Shape part;
    try {
        part = FeatureBuilder::Build(RandomList(seed)).shape;
    } catch (const BuildError& error) {
        return Result("unbuilt", error.Reason());
    }
    try {
        WriteStepFile(part, path);
        return Compared(part, ReadStepFile(path));
    } catch (const StepError& error) {
        return Result("refused", error.Reason());
    }
}

QString ReadDamagedFile(unsigned seed)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("part.step");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The file could not be written.");
    file.write(DamagedText(seed));
    file.close();
    TopoDS_Shape shape;
    try {
        shape = ReadStepFile(path);
        BodyVolumes volumes;
        CheckNewBodies(shape, {}, volumes);
        return Result("sound");
    } catch (const HostError& error) {
        return Result(shape.IsNull() ? "refused" : "unsound", error.Reason());
    }
}
