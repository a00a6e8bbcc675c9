#include "StepFile.h"

#include "Bodies.h"
#include "KernelSignals.h"
#include "StepText.h"
#include "WholeFile.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <QFileInfo>
#include <Standard_Failure.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <cmath>
#include <vector>

namespace {

// The beginning and the end of every complete file.
const char BeginMark[] = "ISO-10303-21;";
const char EndMark[] = "END-ISO-10303-21;";

[[noreturn]] void Fail(const QString& path, const QString& reason)
{
    throw StepError(QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), reason));
}

// Makes every failure of @p call one of the file.
template<class Call>
auto NamingFile(const QString& path, const Call& call)
{
    try {
        return GuardKernelCall(call);
    } catch (const StepError& error) {
        Fail(path, error.Reason());
    } catch (const Standard_Failure& failure) {
        Fail(path, StepError::tr("the geometry kernel failed: %1")
                       .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
}

QByteArray ReadContent(const QString& path)
{
    constexpr int HeadSize = 1024;
    constexpr int TailSize = 64;
    tarn::WholeFile file(path);
    QByteArray content;
    if (!file.Read(content))
        Fail(path, file.Error());
    if (!content.left(HeadSize).contains(BeginMark))
        Fail(path, StepError::tr("is not a STEP file"));
    if (!content.right(TailSize).contains(EndMark))
        Fail(path, StepError::tr("is incomplete"));
    return content;
}

enum class Integration
{
    Fast, // With a fixed number of points, which suffices for most faces.
    Exact
};

struct Moments
{
    double volume = 0.0;
    double area = 0.0;
    gp_Pnt centre;
};

Moments MomentsOf(const TopoDS_Shape& shape, Integration integration)
{
    GProp_GProps volume;
    GProp_GProps area;
    if (integration == Integration::Fast) {
        BRepGProp::VolumeProperties(shape, volume);
        BRepGProp::SurfaceProperties(shape, area);
    } else {
        constexpr double Accuracy = 1e-8;
        BRepGProp::VolumeProperties(shape, volume, Accuracy);
        BRepGProp::SurfaceProperties(shape, area, Accuracy);
    }
    return {volume.Mass(), area.Mass(), volume.CentreOfMass()};
}

bool HaveSameMoments(const TopoDS_Shape& a, const TopoDS_Shape& b, Integration integration)
{
    constexpr double Tolerance = 1e-6;
    const Moments first = MomentsOf(a, integration);
    const Moments second = MomentsOf(b, integration);
    const double size = std::cbrt(first.volume) + std::sqrt(first.area);
    return std::abs(first.volume - second.volume) <= Tolerance * first.volume &&
           std::abs(first.area - second.area) <= Tolerance * first.area &&
           first.centre.Distance(second.centre) <= Tolerance * size;
}

TopoDS_Shape WithoutCopies(const TopoDS_Shape& shape)
{
    TopTools_MapOfShape seen;
    std::vector<TopoDS_Shape> originals;
    VisitBodies(shape, [&](const TopoDS_Shape& body) {
        if (seen.Add(AtOrigin(body)))
            originals.push_back(body);
    });
    return Compound(originals);
}

// The kernel writes some bodies so that it reads back others, or none.
void CheckRoundTrip(const TopoDS_Shape& whole, const QByteArray& wholeText)
{
    // Reading takes time with the square of the number of copies.
    const TopoDS_Shape originals = WithoutCopies(whole);
    const bool hasCopies = CountBodies(originals) < CountBodies(whole);
    const TopoDS_Shape& shape = hasCopies ? originals : whole;
    const QByteArray text = hasCopies ? StepText(originals) : wholeText;
    QString reason;
    try {
        const TopoDS_Shape read = ShapeFromStep(text);
        const bool isSame = HaveSameMoments(shape, read, Integration::Fast) ||
                            HaveSameMoments(shape, read, Integration::Exact);
        if (isSame && BRepCheck_Analyzer(read).IsValid())
            return;
        reason = isSame ? StepError::tr("a body is not valid")
                        : StepError::tr("volume, area or centre of mass differ");
    } catch (const StepError& error) {
        reason = error.Reason();
    }
    throw StepError(StepError::tr("the file would not read back as the part: %1").arg(reason));
}

} // namespace

TopoDS_Shape ReadStepFile(const QString& path)
{
    const QByteArray content = ReadContent(path);
    return NamingFile(path, [&] { return ShapeFromStep(content); });
}

void WriteStepFile(const TopoDS_Shape& shape, const QString& path)
{
    const QByteArray text = NamingFile(path, [&] {
        QByteArray written = StepText(shape);
        CheckRoundTrip(shape, written);
        return written;
    });
    tarn::WholeFile file(path);
    if (!file.Write(text))
        Fail(path, file.Error());
}
