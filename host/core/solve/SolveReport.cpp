#include "SolveReport.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr quint32 Signature = 0x54534b32; // Changes with the layout.
// Of all displacements together; Qt's arrays end at 2 GB.
constexpr std::size_t MostPoints = 80'000'000;

class Writer
{
public:
    QByteArray Bytes(const SolveReport& report)
    {
        Number(Signature);
        Number(report.kind);
        Number(report.nodes);
        Number(report.elements);
        Number(report.worst);
        Number(report.worstPlace);
        List(report.skin.points);
        List(report.skin.nodes);
        List(report.skin.triangles);
        List(report.skin.lines);
        List(report.modes);
        Number(report.totalMass);
        Number(quint64(report.moves.size()));
        for (const auto& moves : report.moves)
            List(moves);
        List(report.stresses);
        Number(report.displacement);
        Number(report.stress);
        Number(report.reaction);
        return m_bytes;
    }

private:
    template<class T>
    void Number(const T& value)
    {
        m_bytes.append(reinterpret_cast<const char*>(&value), int(sizeof(T)));
    }

    template<class T>
    void List(const std::vector<T>& list)
    {
        Number(quint64(list.size()));
        m_bytes.append(reinterpret_cast<const char*>(list.data()), int(list.size() * sizeof(T)));
    }

    QByteArray m_bytes;
};

[[noreturn]] void Fail()
{
    throw HostError(
        QCoreApplication::translate("SolveReport", "The file of the results is damaged."));
}

class Reader
{
public:
    explicit Reader(const QByteArray& bytes)
        : m_next(bytes.constData())
        , m_rest(std::size_t(bytes.size()))
    {
    }

    SolveReport Report()
    {
        if (Number<quint32>() != Signature)
            Fail();
        SolveReport report;
        report.kind = Number<SolveKind>();
        report.nodes = Number<int>();
        report.elements = Number<int>();
        report.worst = Number<double>();
        report.worstPlace = Number<Vector3>();
        report.skin.points = List<MeshSkin::Point>();
        report.skin.nodes = List<int>();
        report.skin.triangles = Indices<3>(report);
        report.skin.lines = Indices<2>(report);
        report.modes = List<Mode>();
        report.totalMass = Number<Mode::Masses>();
        for (auto count = Number<quint64>(); count > 0; --count)
            report.moves.push_back(PerPoint<MeshSkin::Point>(report));
        report.stresses = List<float>();
        if (!report.stresses.empty() && report.stresses.size() != report.skin.points.size())
            Fail();
        report.displacement = Number<SolveReport::Peak>();
        report.stress = Number<SolveReport::Peak>();
        report.reaction = Number<Vector3>();
        return report;
    }

private:
    const char* Take(std::size_t bytes)
    {
        if (bytes > m_rest)
            Fail();
        const char* const begin = m_next;
        m_next += bytes;
        m_rest -= bytes;
        return begin;
    }

    template<class T>
    T Number()
    {
        T value{};
        const char* const bytes = Take(sizeof(T));
        std::copy(bytes, bytes + sizeof(T), reinterpret_cast<char*>(&value));
        return value;
    }

    template<class T>
    std::vector<T> List()
    {
        const auto count = Number<quint64>();
        if (count > m_rest / sizeof(T))
            Fail();
        std::vector<T> list(count);
        const char* const bytes = Take(count * sizeof(T));
        std::copy(bytes, bytes + count * sizeof(T), reinterpret_cast<char*>(list.data()));
        return list;
    }

    template<class T>
    std::vector<T> PerPoint(const SolveReport& report)
    {
        std::vector<T> list = List<T>();
        if (list.size() != report.skin.points.size())
            Fail();
        return list;
    }

    template<std::size_t Count>
    std::vector<std::array<int, Count>> Indices(const SolveReport& report)
    {
        auto list = List<std::array<int, Count>>();
        const auto isWrong = [&](int index) {
            return index < 0 || std::size_t(index) >= report.skin.points.size();
        };
        for (const auto& indices : list) {
            if (std::any_of(indices.begin(), indices.end(), isWrong))
                Fail();
        }
        return list;
    }

    const char* m_next;
    std::size_t m_rest;
};

std::vector<MeshSkin::Point> OnSkin(const std::vector<Vector3>& values, const MeshSkin& skin)
{
    std::vector<MeshSkin::Point> moves;
    moves.reserve(skin.nodes.size());
    for (const int node : skin.nodes) {
        const Vector3& value = values.at(std::size_t(node));
        moves.push_back({float(value[0]), float(value[1]), float(value[2])});
    }
    return moves;
}

} // namespace

SolveReport ReportOf(const SolveResult& result, SolveKind kind)
{
    const Mesh& mesh = result.model.mesh;
    SolveReport report;
    report.nodes = int(mesh.nodes.size());
    report.elements = int(mesh.ElementCount());
    report.worst = result.quality.worst;
    report.worstPlace = result.quality.worstPlace;
    report.skin = SkinOf(mesh);
    if (result.outcome != SolveResult::Done)
        return report;
    report.kind = kind;
    report.modes = result.modes;
    report.totalMass = result.totalMass;
    std::size_t points = 0;
    for (const std::vector<Vector3>& shape : result.shapes) {
        points += report.skin.points.size();
        if (points <= MostPoints)
            report.moves.push_back(OnSkin(shape, report.skin));
    }
    if (kind != SolveKind::Static)
        return report;
    const StaticResult& statics = result.statics;
    report.moves = {OnSkin(statics.displacements, report.skin)};
    for (const int node : report.skin.nodes)
        report.stresses.push_back(float(statics.stresses.at(std::size_t(node))));
    const auto at = [&mesh](int node) {
        return mesh.nodes.at(std::size_t(node));
    };
    report.displacement = {statics.maximumDisplacement, at(statics.displacedNode)};
    report.stress = {statics.maximumStress, at(statics.stressedNode)};
    report.reaction = result.reaction;
    return report;
}

QByteArray ToBytes(const SolveReport& report)
{
    return Writer().Bytes(report);
}

SolveReport ReportFromBytes(const QByteArray& bytes)
{
    return Reader(bytes).Report();
}
