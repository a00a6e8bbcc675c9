#include "SolverDeck.h"

#include "DeckText.h"
#include "ElementShapes.h"

namespace {

const QByteArray FrequencyCard("*FREQUENCY\n");

// The solver reads as many characters of a number, and silently leaves out the rest.
constexpr int NumberWidth = 20;

class Writer
{
public:
    explicit Writer(const FiniteElementModel& model)
        : m_model(model)
    {
        constexpr int BytesPerNode = 96;
        m_text.reserve(int(model.mesh.nodes.size()) * BytesPerNode);
    }

    QByteArray Write(const DeckStep& step)
    {
        m_text += "** Units: mm, N, MPa, t, s\n*HEADING\nModel_Active\n";
        WriteNodes();
        for (std::size_t section = 0; section < m_model.sections.size(); ++section)
            WriteElements(section);
        for (std::size_t material = 0; material < m_model.materials.size(); ++material)
            WriteMaterial(material);
        for (std::size_t section = 0; section < m_model.sections.size(); ++section)
            WriteSection(section);
        WriteSupports();
        WriteStep(step);
        return m_text;
    }

private:
    void Number(double value) { m_text += NumberInWidth(value, NumberWidth); }
    void Integer(std::size_t value) { m_text += QByteArray::number(qulonglong(value)); }

    void WriteNodes()
    {
        m_text += "*NODE\n";
        std::size_t id = 0;
        for (const Vector3& node : m_model.mesh.nodes) {
            Integer(++id);
            for (const double coordinate : node) {
                m_text += ',';
                Number(coordinate);
            }
            m_text += '\n';
        }
    }

    void WriteElements(std::size_t section)
    {
        const QByteArray set = ",ELSET=E" + QByteArray::number(qulonglong(section) + 1) + '\n';
        const std::vector<std::size_t>& elements = m_model.sections[section].elements;
        if (m_model.mesh.IsSolid()) {
            m_text += "*ELEMENT,TYPE=C3D10" + set;
            for (const std::size_t element : elements)
                WriteElement(element, m_model.mesh.tetrahedra[element].nodes, 10);
            return;
        }
        for (const int corners : {3, 4}) {
            bool isFirst = true;
            for (const std::size_t element : elements) {
                const Mesh::Facet& facet = m_model.mesh.facets[element];
                if (facet.corners != corners)
                    continue;
                if (isFirst)
                    m_text += (corners == 3 ? "*ELEMENT,TYPE=S6" : "*ELEMENT,TYPE=S8R") + set;
                isFirst = false;
                WriteElement(element, facet.nodes, facet.NodeCount());
            }
        }
    }

    template<class Nodes>
    void WriteElement(std::size_t element, const Nodes& nodes, std::size_t count)
    {
        Integer(element + 1);
        for (std::size_t i = 0; i < count; ++i) {
            m_text += ',';
            Integer(std::size_t(nodes[i]) + 1);
        }
        m_text += '\n';
    }

    void WriteMaterial(std::size_t place)
    {
        const SolverMaterial& material = m_model.materials[place];
        m_text += "*MATERIAL,NAME=M";
        Integer(place + 1);
        m_text += "\n*ELASTIC\n";
        Number(material.elasticModulus);
        m_text += ',';
        Number(material.poisson);
        m_text += "\n*DENSITY\n";
        Number(material.density);
        m_text += '\n';
    }

    void WriteSection(std::size_t place)
    {
        const ModelSection& section = m_model.sections[place];
        m_text += m_model.mesh.IsSolid() ? "*SOLID SECTION,ELSET=E" : "*SHELL SECTION,ELSET=E";
        Integer(place + 1);
        m_text += ",MATERIAL=M";
        Integer(section.material + 1);
        m_text += '\n';
        if (m_model.mesh.IsSolid())
            return;
        Number(section.thickness);
        m_text += '\n';
    }

    void WriteSupports()
    {
        bool isFirst = true;
        for (std::size_t node = 0; node < m_model.held.size(); ++node) {
            for (unsigned int freedom = 0; freedom < 6; ++freedom) {
                if ((m_model.held[node] & (1u << freedom)) == 0)
                    continue;
                if (isFirst)
                    m_text += "*BOUNDARY\n";
                isFirst = false;
                Integer(node + 1);
                m_text += ',';
                Integer(freedom + 1);
                m_text += '\n';
            }
        }
    }

    void WriteStep(const DeckStep& step)
    {
        m_text += "*STEP\n";
        if (step.isStatic) {
            m_text += "*STATIC\n";
            WriteForces();
            // In three dimensions for shells, too: in two, stress is that of the middle surface.
            m_text += "*NODE FILE\nU\n*EL FILE\nS\n";
        } else {
            // Without a range: the solver counts the modes before it leaves some out.
            m_text += FrequencyCard + QByteArray::number(step.modes) + '\n';
            m_text += m_model.mesh.IsSolid() ? "*NODE FILE\nU\n" : "*NODE FILE,OUTPUT=2D\nU\n";
        }
        m_text += "*END STEP\n";
    }

    void WriteForces()
    {
        m_text += "*CLOAD\n";
        for (std::size_t node = 0; node < m_model.forces.size(); ++node) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                const double force = m_model.forces[node][axis];
                if (force == 0.0)
                    continue;
                Integer(node + 1);
                m_text += ',';
                Integer(axis + 1);
                m_text += ',';
                Number(force);
                m_text += '\n';
            }
        }
    }

    const FiniteElementModel& m_model;
    QByteArray m_text;
};

} // namespace

QByteArray SolverDeck(const FiniteElementModel& model, const DeckStep& step)
{
    return Writer(model).Write(step);
}

int ModesAskedBy(const QByteArray& deck)
{
    const int card = deck.lastIndexOf(FrequencyCard);
    if (card < 0)
        return 0;
    const int begin = card + FrequencyCard.size();
    return deck.mid(begin, deck.indexOf('\n', begin) - begin).toInt();
}
