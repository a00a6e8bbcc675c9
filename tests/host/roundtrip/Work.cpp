#include "Work.h"

#include "Dice.h"
#include "NewFeature.h"
#include "RandomList.h"
#include "TestFiles.h"

#include <QRegularExpression>

#include <cmath>

namespace {

QString Result(const char* word, const QString& reason = {})
{
    return QLatin1String(word) + QLatin1Char(' ') + reason;
}

QString Failure(const char* word, const PartReply& reply)
{
    const QString reason = reply.Reason();
    if (reason.contains("crashed"))
        return Result("crash", reason);
    return Result(reason.contains("time limit") ? "timeout" : word, reason);
}

QString Compared(const ShapeMeasures& part, const ShapeMeasures& read)
{
    constexpr double Tolerance = 2e-6; // Twice that of the export, whose integration is coarser.
    const double volume = std::abs(part.volume - read.volume) / part.volume;
    const double area = std::abs(part.area - read.area) / part.area;
    if (volume <= Tolerance && area <= Tolerance)
        return Result("same");
    return Result("different", QStringLiteral("volume by %1, area by %2").arg(volume).arg(area));
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

// Without what the kernel writes differently each time: how many files it has written, and when.
QByteArray Reproducible(const QByteArray& text)
{
    static const QRegularExpression changing("translator [\\d. ]+|\\d{4}-\\d\\d-\\d\\dT[\\d:]+");
    return QString::fromLatin1(text).remove(changing).toLatin1();
}

} // namespace

Work::Work()
    : m_path(m_directory.filePath("part.step"))
{
    BuildLimits limits;
    limits.seconds = 20;
    m_worker.SetLimits(limits);
}

QString Work::Do(const QString& work, unsigned seed)
{
    return work == "models" ? RoundTrip(seed) : ReadDamagedFile(seed);
}

PartReply Work::Write(unsigned seed)
{
    PartRequest request;
    request.plan = PlanPart(RandomList(seed));
    request.wantsShapes = false;
    request.stepPath = m_path;
    return m_worker.Run(request);
}

PartReply Work::Read()
{
    Feature import = NewFeature("import", "import");
    import.file = m_path;
    FeatureList list;
    list.Append(import);
    PartRequest request;
    request.plan = PlanPart(list);
    return m_worker.Run(request);
}

QString Work::RoundTrip(unsigned seed)
{
    const PartReply written = Write(seed);
    if (written.outcome != PartReply::Done)
        return Failure(written.failedFeature.isEmpty() ? "refused" : "unbuilt", written);
    const PartReply read = Read();
    return read.outcome == PartReply::Done ? Compared(written.measures, read.measures)
                                           : Failure("different", read);
}

QString Work::ReadDamagedFile(unsigned seed)
{
    Dice dice(seed);
    // Not each list can be built.
    while (Write(unsigned(dice.Below(200))).outcome != PartReply::Done) {
    }
    QByteArray text = Reproducible(ContentOf(m_path));
    const int damages = 1 + dice.Below(5);
    for (int i = 0; i < damages; ++i)
        DamageOnce(text, dice);
    Put(m_path, text);
    const PartReply read = Read();
    return read.outcome == PartReply::Done ? Result("sound") : Failure("refused", read);
}
