#include "MeshFile.h"

#include "WholeFile.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace {

constexpr int MaximumSize = std::numeric_limits<int>::max() - 64;
// The shortest lines of a node and of an element that count.
constexpr std::size_t LeastNodeLine = 8;
constexpr std::size_t LeastElementLine = 8;

// The file's numbers for the kinds of elements.
enum FileKind
{
    Line3 = 8,
    Triangle6 = 9,
    Tetrahedron10 = 11,
    Point1 = 15,
    Quadrilateral8 = 16
};

/// The words of the file, one after the other.
class Words
{
public:
    explicit Words(const QByteArray& bytes)
        : m_next(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
    {
    }

    std::size_t BytesLeft() const { return std::size_t(m_end - m_next); }

    std::string_view Next()
    {
        SkipBlanks();
        const char* const begin = m_next;
        while (m_next != m_end && !IsBlank(*m_next))
            ++m_next;
        return {begin, std::size_t(m_next - begin)};
    }

    void SkipLine() { m_next = std::find(m_next, m_end, '\n'); }

    void Expect(std::string_view word)
    {
        if (Next() != word)
            Fail();
    }

    template<class Number>
    Number Next()
    {
        SkipBlanks();
        Number number{};
        const auto [rest, error] = std::from_chars(m_next, m_end, number);
        if (error != std::errc() || (rest != m_end && !IsBlank(*rest)))
            Fail();
        m_next = rest;
        return number;
    }

    [[noreturn]] static void Fail()
    {
        throw MeshError(MeshError::tr("The file of the mesh is damaged or not complete."));
    }

private:
    static bool IsBlank(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

    void SkipBlanks()
    {
        while (m_next != m_end && IsBlank(*m_next))
            ++m_next;
    }

    const char* m_next;
    const char* m_end;
};

class Reader
{
public:
    explicit Reader(const QByteArray& bytes)
        : m_words(bytes)
    {
    }

    Mesh Read()
    {
        m_words.Expect("$MeshFormat");
        m_words.Expect("2.2");
        m_words.Expect("0"); // Text.
        m_words.Expect("8");
        m_words.Expect("$EndMeshFormat");
        std::string_view section = m_words.Next();
        while (section != "$Nodes") {
            SkipSection(section);
            section = m_words.Next();
        }
        ReadNodes();
        m_words.Expect("$Elements");
        ReadElements();
        m_words.Expect("$EndElements");
        RemoveUnusedNodes();
        return std::move(m_mesh);
    }

private:
    // Names of groups, which are not asked for but do no harm.
    void SkipSection(std::string_view name)
    {
        if (name.empty() || name.front() != '$')
            Words::Fail();
        const std::string end = "$End" + std::string(name.substr(1));
        for (std::string_view word = m_words.Next(); word != end; word = m_words.Next()) {
            if (word.empty())
                Words::Fail();
        }
    }

    std::size_t ReadCount(std::size_t leastLine)
    {
        const auto count = m_words.Next<std::size_t>();
        // A damaged number must not take all memory.
        if (count > m_words.BytesLeft() / leastLine)
            Words::Fail();
        return count;
    }

    void ReadNodes()
    {
        const std::size_t count = ReadCount(LeastNodeLine);
        m_mesh.nodes.reserve(count);
        m_places.assign(count + 1, -1);
        for (std::size_t place = 0; place < count; ++place) {
            const int id = m_words.Next<int>();
            Vector3 node{};
            for (double& coordinate : node) {
                coordinate = m_words.Next<double>();
                if (!std::isfinite(coordinate))
                    Words::Fail();
            }
            SetPlace(id, int(place));
            m_mesh.nodes.push_back(node);
        }
        m_words.Expect("$EndNodes");
    }

    void SetPlace(int id, int place)
    {
        // The mesher leaves few gaps; numbers far beyond the count are damage.
        const std::size_t most = 16 * m_places.size();
        if (id < 1 || std::size_t(id) > most)
            Words::Fail();
        if (std::size_t(id) >= m_places.size())
            m_places.resize(std::min(2 * std::size_t(id), most + 1), -1);
        int& target = m_places[std::size_t(id)];
        if (target != -1)
            Words::Fail();
        target = place;
    }

    void ReadElements()
    {
        const std::size_t count = ReadCount(LeastElementLine);
        for (std::size_t i = 0; i < count; ++i) {
            m_words.Next<int>();
            const int kind = m_words.Next<int>();
            const int tags = m_words.Next<int>();
            if (tags < 2 || tags > MaximumTags)
                Words::Fail();
            m_words.Next<int>();
            const int entity = m_words.Next<int>();
            for (int tag = 2; tag < tags; ++tag)
                m_words.Next<int>();
            ReadElement(kind, entity);
        }
    }

    void ReadElement(int kind, int entity)
    {
        switch (kind) {
        case Point1:
            NextNode();
            break;
        case Line3:
            m_mesh.lines.push_back({NextNodes<3>(), entity});
            break;
        case Triangle6:
            AddFacet<6>(entity);
            break;
        case Quadrilateral8:
            AddFacet<8>(entity);
            break;
        case Tetrahedron10: {
            Mesh::Tetrahedron element{NextNodes<10>(), entity};
            // The mesher's last two nodes are in the other order.
            std::swap(element.nodes[8], element.nodes[9]);
            m_mesh.tetrahedra.push_back(element);
            break;
        }
        default:
            throw MeshError(
                MeshError::tr("The mesh has elements of the unknown kind %1.").arg(kind));
        }
    }

    template<std::size_t Count>
    void AddFacet(int entity)
    {
        Mesh::Facet facet;
        const auto nodes = NextNodes<Count>();
        std::copy(nodes.begin(), nodes.end(), facet.nodes.begin());
        facet.corners = int(Count / 2);
        facet.face = entity;
        m_mesh.facets.push_back(facet);
    }

    int NextNode()
    {
        const int id = m_words.Next<int>();
        if (id < 1 || std::size_t(id) >= m_places.size() || m_places[std::size_t(id)] == -1)
            Words::Fail();
        return m_places[std::size_t(id)];
    }

    template<std::size_t Count>
    std::array<int, Count> NextNodes()
    {
        std::array<int, Count> nodes;
        for (int& node : nodes)
            node = NextNode();
        return nodes;
    }

    void RemoveUnusedNodes()
    {
        std::vector<int> places(m_mesh.nodes.size(), -1);
        const auto use = [&](const auto& nodes, std::size_t count) {
            std::for_each_n(nodes.begin(), count, [&](int node) { places[std::size_t(node)] = 0; });
        };
        for (const Mesh::Tetrahedron& element : m_mesh.tetrahedra)
            use(element.nodes, element.nodes.size());
        if (!m_mesh.IsSolid()) {
            for (const Mesh::Facet& facet : m_mesh.facets)
                use(facet.nodes, facet.NodeCount());
        }
        std::vector<Vector3> nodes;
        for (std::size_t node = 0; node < places.size(); ++node) {
            if (places[node] == -1)
                continue;
            places[node] = int(nodes.size());
            nodes.push_back(m_mesh.nodes[node]);
        }
        m_mesh.nodes = std::move(nodes);
        for (Mesh::Tetrahedron& element : m_mesh.tetrahedra)
            Renumber(element.nodes, element.nodes.size(), places);
        const auto isLeftOver = [&places](auto& element, std::size_t count) {
            return !Renumber(element.nodes, count, places);
        };
        auto& facets = m_mesh.facets;
        facets.erase(std::remove_if(
                         facets.begin(), facets.end(),
                         [&](Mesh::Facet& facet) { return isLeftOver(facet, facet.NodeCount()); }),
                     facets.end());
        auto& lines = m_mesh.lines;
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [&](Mesh::Line& line) { return isLeftOver(line, 3); }),
                    lines.end());
        if (m_mesh.ElementCount() == 0)
            throw MeshError(MeshError::tr("The mesh has no elements."));
    }

    // Returns whether all nodes are still there.
    template<class Nodes>
    static bool Renumber(Nodes& nodes, std::size_t count, const std::vector<int>& places)
    {
        for (std::size_t i = 0; i < count; ++i)
            nodes[i] = places[std::size_t(nodes[i])];
        return std::all_of(nodes.begin(), nodes.begin() + std::ptrdiff_t(count),
                           [](int node) { return node >= 0; });
    }

    static constexpr int MaximumTags = 64;

    Words m_words;
    Mesh m_mesh;
    std::vector<int> m_places; // Of the nodes, by the number in the file; -1 for none.
};

} // namespace

Mesh ReadMeshFile(const QString& path)
{
    tarn::WholeFile file(path, MaximumSize);
    QByteArray bytes;
    if (!file.Read(bytes))
        throw MeshError(MeshError::tr("The file of the mesh %1").arg(file.Error()));
    return Reader(bytes).Read();
}
