#include "AnalysisTexts.h"

#include "NumberTexts.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(AnalysisTexts)
};

// " on bore.side, a.xmin | a.ymin"; says so if there is no target.
QString TargetsText(const std::vector<FaceReference>& faces,
                    const std::vector<EdgeReference>& edges)
{
    QStringList targets;
    for (const FaceReference& face : faces)
        targets << face.Text();
    for (const EdgeReference& edge : edges)
        targets << edge.Text();
    if (targets.isEmpty())
        return Texts::tr("; nothing is picked yet");
    return Texts::tr(" on %1").arg(targets.join(QStringLiteral(", ")));
}

} // namespace

QString SolverTypeText(const SolverType& type)
{
    using namespace AnalysisType;
    const struct
    {
        SolverType type;
        QString text;
    } types[] = {
        {{MechanicsFamily, StaticKind}, Texts::tr("Static")},
        {{MechanicsFamily, VibrationKind}, Texts::tr("Vibration")},
        {{MechanicsFamily, BucklingKind}, Texts::tr("Buckling")},
        {{MechanicsFamily, TransientKind}, Texts::tr("Transient")},
        {{MechanicsFamily, FrequencyResponseKind}, Texts::tr("Frequency response")},
        {{ComplexEigenvalueFamily, ComplexEigenvalueKind}, Texts::tr("Complex eigenvalue")},
    };
    QString text = Texts::tr("unknown");
    for (const auto& known : types) {
        if (known.type == type)
            text = known.text;
    }
    return Texts::tr("%1 (family %2, kind %3)").arg(text).arg(type.family).arg(type.kind);
}

QString EntryText(const ConstraintDefinition& constraint)
{
    static const std::array<const char*, ConstraintDefinition::Freedoms> words = {
        "X_D", "Y_D", "Z_D", "X_R", "Y_R", "Z_R"};
    QStringList held;
    for (std::size_t freedom = 0; freedom < words.size(); ++freedom) {
        if (constraint.held[freedom])
            held << QString::fromLatin1(words[freedom]);
    }
    const QString text = held.isEmpty()
                             ? Texts::tr("fixes nothing")
                             : Texts::tr("fixes %1").arg(held.join(QStringLiteral(", ")));
    return text + TargetsText(constraint.faces, constraint.edges);
}

QString EntryText(const LoadDefinition& load)
{
    return Texts::tr("FX = %1 N, FY = %2 N, FZ = %3 N")
               .arg(load.force[0], load.force[1], load.force[2]) +
           TargetsText(load.faces, load.edges);
}

QString EntryText(const PropertyDefinition& property)
{
    const QString material = property.material.isEmpty()
                                 ? Texts::tr("no material")
                                 : Texts::tr("material %1").arg(property.material);
    if (property.faces.empty())
        return Texts::tr("%1, solid elements in the whole part; nothing is picked for shells yet")
            .arg(material);
    return Texts::tr("%1, shells %2 mm thick").arg(material, property.thickness) +
           TargetsText(property.faces, {});
}

QString EntryText(const LocalMeshDefinition& mesh)
{
    const QString text = mesh.size.isEmpty() ? Texts::tr("%1 elements along each").arg(mesh.number)
                                             : Texts::tr("size %1 mm").arg(mesh.size);
    return text + TargetsText(mesh.faces, mesh.edges);
}

QString EntryText(const FrequencyRange& range)
{
    return Texts::tr("%1 Hz to %2 Hz, %3 modes")
        .arg(ExactText(range.min), ExactText(range.max))
        .arg(range.number);
}
