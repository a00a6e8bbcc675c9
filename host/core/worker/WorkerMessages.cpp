#include "WorkerMessages.h"

#include "Bodies.h"
#include "FeatureKinds.h"

#include <QDataStream>
#include <QtEndian>
#include <TopoDS_Iterator.hxx>

#include <BinTools.hxx>

#include <sstream>
#include <unordered_map>

namespace {

// The file format of the shapes depends on it as well: both processes are of the same program.
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_5_15;
constexpr int LengthSize = 4;

// The lists below are written before these are defined.
QDataStream& operator<<(QDataStream& out, const BuildStep& step);
QDataStream& operator>>(QDataStream& in, BuildStep& step);
QDataStream& operator<<(QDataStream& out, const FaceTarget& target);
QDataStream& operator>>(QDataStream& in, FaceTarget& target);
QDataStream& operator<<(QDataStream& out, const EdgeTarget& target);
QDataStream& operator>>(QDataStream& in, EdgeTarget& target);
QDataStream& operator<<(QDataStream& out, const OutlineCorner& corner);
QDataStream& operator>>(QDataStream& in, OutlineCorner& corner);
QDataStream& operator<<(QDataStream& out, const FoundTarget& found);
QDataStream& operator>>(QDataStream& in, FoundTarget& found);

QDataStream& operator<<(QDataStream& out, const std::pair<int, int>& pair)
{
    return out << pair.first << pair.second;
}

QDataStream& operator>>(QDataStream& in, std::pair<int, int>& pair)
{
    return in >> pair.first >> pair.second;
}

template<class T>
QDataStream& operator<<(QDataStream& out, const std::vector<T>& values)
{
    out << quint32(values.size());
    for (const T& value : values)
        out << value;
    return out;
}

template<class T>
QDataStream& operator>>(QDataStream& in, std::vector<T>& values)
{
    quint32 size = 0;
    in >> size;
    values.clear();
    while (values.size() < size && in.status() == QDataStream::Ok) {
        values.emplace_back();
        in >> values.back();
    }
    return in;
}

QDataStream& operator<<(QDataStream& out, const BuildStep& step)
{
    return out << step.name << QString(step.kind->word) << step.suppressed << step.inputs
               << step.values << step.file << step.edges << step.faces << step.outline;
}

QDataStream& operator>>(QDataStream& in, BuildStep& step)
{
    QString word;
    in >> step.name >> word >> step.suppressed >> step.inputs >> step.values >> step.file >>
        step.edges >> step.faces >> step.outline;
    step.kind = FeatureKinds::Find(word);
    return in;
}

QDataStream& operator<<(QDataStream& out, const std::array<double, 3>& point)
{
    return out << point[0] << point[1] << point[2];
}

QDataStream& operator>>(QDataStream& in, std::array<double, 3>& point)
{
    return in >> point[0] >> point[1] >> point[2];
}

QDataStream& operator<<(QDataStream& out, const FaceTarget& target)
{
    return out << target.name << target.at;
}

QDataStream& operator>>(QDataStream& in, FaceTarget& target)
{
    return in >> target.name >> target.at;
}

QDataStream& operator<<(QDataStream& out, const EdgeTarget& target)
{
    return out << target.between << target.at;
}

QDataStream& operator>>(QDataStream& in, EdgeTarget& target)
{
    return in >> target.between >> target.at;
}

QDataStream& operator<<(QDataStream& out, const gp_Pnt2d& point)
{
    return out << point.X() << point.Y();
}

QDataStream& operator>>(QDataStream& in, gp_Pnt2d& point)
{
    double x = 0.0;
    double y = 0.0;
    in >> x >> y;
    point = gp_Pnt2d(x, y);
    return in;
}

QDataStream& operator<<(QDataStream& out, const OutlineCorner& corner)
{
    return out << corner.point << corner.via.has_value() << corner.via.value_or(gp_Pnt2d());
}

QDataStream& operator>>(QDataStream& in, OutlineCorner& corner)
{
    bool isArc = false;
    gp_Pnt2d via;
    in >> corner.point >> isArc >> via;
    if (isArc)
        corner.via = via;
    return in;
}

QDataStream& operator<<(QDataStream& out, const FoundTarget& found)
{
    return out << found.numbers << found.area << found.error;
}

QDataStream& operator>>(QDataStream& in, FoundTarget& found)
{
    return in >> found.numbers >> found.area >> found.error;
}

QDataStream& operator<<(QDataStream& out, const ShapeMeasures& measures)
{
    out << measures.volume << measures.area << measures.centre;
    for (const double moment : measures.secondMoments)
        out << moment;
    for (const double side : measures.boundingBox)
        out << side;
    return out << measures.overlaps.pairs << measures.overlaps.isComplete;
}

QDataStream& operator>>(QDataStream& in, ShapeMeasures& measures)
{
    in >> measures.volume >> measures.area >> measures.centre;
    for (double& moment : measures.secondMoments)
        in >> moment;
    for (double& side : measures.boundingBox)
        in >> side;
    return in >> measures.overlaps.pairs >> measures.overlaps.isComplete;
}

QDataStream& operator<<(QDataStream& out, const LineDrawing& lines)
{
    return out << lines.edges << lines.smooth << lines.isTooLarge << lines.failure;
}

QDataStream& operator>>(QDataStream& in, LineDrawing& lines)
{
    return in >> lines.edges >> lines.smooth >> lines.isTooLarge >> lines.failure;
}

template<class Write>
QByteArray Written(const Write& write)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamVersion);
    write(out);
    return bytes;
}

// Those that the receiver does not have: each once, in the order of the plan.
struct SentShapes
{
    QByteArray shapes; // Empty if the receiver wants none.
    std::vector<FaceOrigins> faces;
};

// In one file, so that what the shapes have in common stays so.
QByteArray ShapesToBytes(const std::vector<TopoDS_Shape>& shapes)
{
    std::ostringstream out;
    BinTools::Write(Compound(shapes), out);
    return QByteArray::fromStdString(out.str());
}

std::vector<TopoDS_Shape> ShapesFromBytes(const QByteArray& bytes)
{
    TopoDS_Shape all;
    std::istringstream in(bytes.toStdString());
    BinTools::Read(all, in);
    std::vector<TopoDS_Shape> shapes;
    for (TopoDS_Iterator child(all); child.More(); child.Next())
        shapes.push_back(child.Value());
    return shapes;
}

// Null shapes have no key. A key that occurs again stands for the same shape.
void ReadShapes(const SentShapes& sent, BuiltPart& part, const BuiltPart& known)
{
    QHash<QByteArray, TracedShape> results;
    for (std::size_t place = 0; place < known.keys.size(); ++place)
        results.insert(known.keys[place], {known.shapes[place], known.faces[place]});
    const std::vector<TopoDS_Shape> shapes = ShapesFromBytes(sent.shapes);
    std::size_t next = 0;
    for (const QByteArray& key : part.keys) {
        if (!key.isEmpty() && !results.contains(key)) {
            results.insert(key, {shapes.at(next), sent.faces.at(next)});
            ++next;
        }
        const TracedShape result = results.value(key);
        part.shapes.push_back(result.shape);
        part.faces.push_back(result.faces);
    }
    part.JoinResults();
}

} // namespace

QString PartReply::Reason() const
{
    return failedFeature.isEmpty() ? cause : FeatureError(failedFeature, cause).Reason();
}

QByteArray ToBytes(const PartRequest& request)
{
    return Written([&](QDataStream& out) {
        out << request.plan << request.known << request.wantsShapes << request.wantsLines
            << request.stepPath << request.stepFeature << request.brepPath << request.faces
            << request.edges;
    });
}

PartRequest RequestFromBytes(const QByteArray& bytes)
{
    QDataStream in(bytes);
    in.setVersion(StreamVersion);
    PartRequest request;
    in >> request.plan >> request.known >> request.wantsShapes >> request.wantsLines >>
        request.stepPath >> request.stepFeature >> request.brepPath >> request.faces >>
        request.edges;
    return request;
}

QByteArray ProgressToBytes(int step)
{
    return Written([&](QDataStream& out) { out << false << step; });
}

bool IsReply(const QByteArray& bytes)
{
    return bytes.at(0) != 0;
}

QByteArray ToBytes(const PartReply& reply, const PartRequest& request)
{
    SentShapes sent;
    if (request.wantsShapes && reply.outcome == PartReply::Done) {
        QSet<QByteArray> known = request.known;
        std::vector<TopoDS_Shape> shapes;
        for (std::size_t place = 0; place < reply.part.keys.size(); ++place) {
            const QByteArray& key = reply.part.keys[place];
            if (key.isEmpty() || known.contains(key))
                continue;
            known.insert(key);
            shapes.push_back(reply.part.shapes[place]);
            sent.faces.push_back(reply.part.faces[place]);
        }
        sent.shapes = ShapesToBytes(shapes);
    }
    return Written([&](QDataStream& out) {
        out << true << int(reply.outcome) << reply.cause << reply.failedFeature << reply.part.keys
            << reply.measures << reply.lines << reply.faces << reply.edges << reply.solids
            << reply.contacts << reply.isLast << sent.shapes << sent.faces;
    });
}

WorkerMessage MessageFromBytes(const QByteArray& bytes, const PartRequest& request,
                               const BuiltPart& known)
{
    QDataStream in(bytes);
    in.setVersion(StreamVersion);
    WorkerMessage message;
    bool isReply = false;
    in >> isReply;
    if (!isReply) {
        in >> message.step;
        return message;
    }
    PartReply reply;
    int outcome = 0;
    SentShapes sent;
    in >> outcome >> reply.cause >> reply.failedFeature >> reply.part.keys >> reply.measures >>
        reply.lines >> reply.faces >> reply.edges >> reply.solids >> reply.contacts >>
        reply.isLast >> sent.shapes >> sent.faces;
    reply.outcome = PartReply::Outcome(outcome);
    reply.part.plan = request.plan;
    if (!sent.shapes.isEmpty())
        ReadShapes(sent, reply.part, known);
    message.reply = reply;
    return message;
}

QByteArray Frame(const QByteArray& message)
{
    QByteArray frame(LengthSize, Qt::Uninitialized);
    qToBigEndian(quint32(message.size()), frame.data());
    return frame + message;
}

std::optional<QByteArray> TakeFrame(QByteArray& bytes)
{
    if (bytes.size() < LengthSize)
        return std::nullopt;
    const auto length = qint64(qFromBigEndian<quint32>(bytes.constData()));
    if (bytes.size() - LengthSize < length)
        return std::nullopt;
    const QByteArray message = bytes.mid(LengthSize, int(length));
    bytes.remove(0, LengthSize + int(length));
    return message;
}
