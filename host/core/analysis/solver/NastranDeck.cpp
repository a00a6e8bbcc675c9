#include "NastranDeck.h"

#include "DeckText.h"

#include <map>

namespace {

constexpr int SmallWidth = 8;
constexpr int LargeWidth = 16;
constexpr int SmallFields = 8; // In a line, besides its first and last one.
constexpr int LargeFields = 4;

/// One entry of bulk data in fields of one width. Lines that continue begin with "+" or "*", and
/// the line before ends so, too: some readers lose what follows blank fields.
class Entry
{
public:
    /// @p name ends with "*" for large fields.
    Entry(QByteArray& text, const QByteArray& name)
        : m_text(text)
        , m_isLarge(name.endsWith('*'))
    {
        m_text += name.leftJustified(SmallWidth);
    }
    ~Entry() { m_text += '\n'; }
    Q_DISABLE_COPY(Entry)

    Entry& Blank() { return Add({}); }
    Entry& Integer(std::size_t value) { return Add(QByteArray::number(qulonglong(value))); }
    Entry& Real(double value) { return Add(RealInWidth(value, Width())); }
    Entry& Word(const QByteArray& word) { return Add(word); }

private:
    int Width() const { return m_isLarge ? LargeWidth : SmallWidth; }

    Entry& Add(const QByteArray& field)
    {
        if (m_fields == (m_isLarge ? LargeFields : SmallFields)) {
            const QByteArray mark(m_isLarge ? "*" : "+");
            m_text += mark + '\n' + mark.leftJustified(SmallWidth);
            m_fields = 0;
        }
        m_text += field.leftJustified(Width());
        ++m_fields;
        return *this;
    }

    QByteArray& m_text;
    bool m_isLarge;
    int m_fields = 0;
};

QByteArray FreedomDigits(std::uint8_t held)
{
    QByteArray digits;
    for (int freedom = 0; freedom < 6; ++freedom) {
        if ((held & (1u << unsigned(freedom))) != 0)
            digits += QByteArray::number(freedom + 1);
    }
    return digits;
}

class Writer
{
public:
    explicit Writer(const FiniteElementModel& model)
        : m_model(model)
    {
        constexpr int BytesPerNode = 256;
        m_text.reserve(int(model.mesh.nodes.size()) * BytesPerNode);
    }

    void WriteControl(const QByteArray& solution, const QByteArray& requests)
    {
        m_text += "$ Units: mm, N, MPa, t, s\nSOL " + solution + "\nCEND\nTITLE = Model_Active\n";
        m_text += "ECHO = NONE\n";
        if (HasSupports())
            m_text += "SPC = 1\n";
        m_text += requests + "BEGIN BULK\n";
        Entry(m_text, "PARAM").Word("POST").Word("-1");
    }

    void WriteModel()
    {
        for (std::size_t node = 0; node < m_model.mesh.nodes.size(); ++node) {
            Entry grid(m_text, "GRID*");
            grid.Integer(node + 1).Blank();
            for (const double coordinate : m_model.mesh.nodes[node])
                grid.Real(coordinate);
        }
        for (std::size_t section = 0; section < m_model.sections.size(); ++section)
            WriteSection(section);
        for (std::size_t place = 0; place < m_model.materials.size(); ++place) {
            const SolverMaterial& material = m_model.materials[place];
            Entry(m_text, "MAT1*")
                .Integer(place + 1)
                .Real(material.elasticModulus)
                .Blank()
                .Real(material.poisson)
                .Real(material.density);
        }
        WriteSupports();
    }

    void WriteForces()
    {
        for (std::size_t node = 0; node < m_model.forces.size(); ++node) {
            const Vector3& force = m_model.forces[node];
            if (force == Vector3{})
                continue;
            Entry entry(m_text, "FORCE*");
            entry.Integer(1).Integer(node + 1).Blank().Real(1.0);
            for (const double component : force)
                entry.Real(component);
        }
    }

    void WriteModes(const FrequencyRange& range)
    {
        Entry entry(m_text, "EIGRL");
        entry.Integer(1);
        // Rounding may put rigid-body modes below 0.
        if (range.min > 0.0)
            entry.Real(range.min);
        else
            entry.Blank();
        entry.Real(range.max).Integer(std::size_t(range.number));
    }

    QByteArray Text() { return m_text + "ENDDATA\n"; }

private:
    bool HasSupports() const
    {
        for (const std::uint8_t held : m_model.held) {
            if (held != 0)
                return true;
        }
        return false;
    }

    void WriteSection(std::size_t place)
    {
        const ModelSection& section = m_model.sections[place];
        if (m_model.mesh.IsSolid()) {
            Entry(m_text, "PSOLID").Integer(place + 1).Integer(section.material + 1);
        } else {
            Entry(m_text, "PSHELL*")
                .Integer(place + 1)
                .Integer(section.material + 1)
                .Real(section.thickness)
                .Integer(section.material + 1)
                .Blank()
                .Integer(section.material + 1);
        }
        for (const std::size_t element : section.elements) {
            if (m_model.mesh.IsSolid()) {
                WriteElement("CTETRA", element, place, m_model.mesh.tetrahedra[element].nodes, 10);
            } else {
                const Mesh::Facet& facet = m_model.mesh.facets[element];
                WriteElement(facet.corners == 3 ? "CTRIA6" : "CQUAD8", element, place, facet.nodes,
                             facet.NodeCount());
            }
        }
    }

    template<class Nodes>
    void WriteElement(const QByteArray& name, std::size_t element, std::size_t section,
                      const Nodes& nodes, std::size_t count)
    {
        Entry entry(m_text, name);
        entry.Integer(element + 1).Integer(section + 1);
        for (std::size_t i = 0; i < count; ++i)
            entry.Integer(std::size_t(nodes[i]) + 1);
    }

    void WriteSupports()
    {
        constexpr std::size_t NodesPerEntry = 6; // One line each.
        std::map<std::uint8_t, std::vector<std::size_t>> nodes;
        for (std::size_t node = 0; node < m_model.held.size(); ++node) {
            if (m_model.held[node] != 0)
                nodes[m_model.held[node]].push_back(node);
        }
        for (const auto& [held, list] : nodes) {
            for (std::size_t first = 0; first < list.size(); first += NodesPerEntry) {
                Entry entry(m_text, "SPC1");
                entry.Integer(1).Word(FreedomDigits(held));
                for (std::size_t i = first; i < std::min(first + NodesPerEntry, list.size()); ++i)
                    entry.Integer(list[i] + 1);
            }
        }
    }

    const FiniteElementModel& m_model;
    QByteArray m_text;
};

} // namespace

QByteArray StaticNastranDeck(const FiniteElementModel& model)
{
    Writer writer(model);
    writer.WriteControl("101", "LOAD = 1\nDISPLACEMENT(PLOT) = ALL\nSTRESS(PLOT) = ALL\n"
                               "SPCFORCES(PLOT) = ALL\n");
    writer.WriteModel();
    writer.WriteForces();
    return writer.Text();
}

QByteArray VibrationNastranDeck(const FiniteElementModel& model, const FrequencyRange& range)
{
    Writer writer(model);
    writer.WriteControl("103", "METHOD = 1\nDISPLACEMENT(PLOT) = ALL\n");
    writer.WriteModel();
    writer.WriteModes(range);
    return writer.Text();
}
