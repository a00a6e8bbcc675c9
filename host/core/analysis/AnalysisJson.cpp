#include "AnalysisJson.h"

#include "JsonSection.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QLatin1String TypeKey("type");
const QLatin1String MeshSizeKey("meshSize");
const QLatin1String FrequenciesKey("frequencies");
const QLatin1String PropertiesKey("properties");
const QLatin1String ConstraintsKey("constraints");
const QLatin1String LoadsKey("loads");
const QLatin1String LocalMeshesKey("localMeshes");
const QLatin1String NameKey("name");
const QLatin1String MaterialKey("material");
const QLatin1String ThicknessKey("thickness");
const QLatin1String HeldKey("held");
const QLatin1String ForceKey("force");
const QLatin1String FacesKey("faces");
const QLatin1String EdgesKey("edges");
const QLatin1String MinKey("min");
const QLatin1String MaxKey("max");
const QLatin1String NumberKey("number");
const QLatin1String SizeKey("size");

/// In the order of ConstraintDefinition::held.
const std::array<QLatin1String, ConstraintDefinition::Freedoms> FreedomWords = {
    QLatin1String("X_D"), QLatin1String("Y_D"), QLatin1String("Z_D"),
    QLatin1String("X_R"), QLatin1String("Y_R"), QLatin1String("Z_R")};

struct TypeWord
{
    QLatin1String word;
    SolverType type;
};

const std::array<TypeWord, 6> TypeWords = {{
    {QLatin1String("static"), {AnalysisType::MechanicsFamily, AnalysisType::StaticKind}},
    {QLatin1String("vibration"), {AnalysisType::MechanicsFamily, AnalysisType::VibrationKind}},
    {QLatin1String("buckling"), {AnalysisType::MechanicsFamily, AnalysisType::BucklingKind}},
    {QLatin1String("transient"), {AnalysisType::MechanicsFamily, AnalysisType::TransientKind}},
    {QLatin1String("frequencyResponse"),
     {AnalysisType::MechanicsFamily, AnalysisType::FrequencyResponseKind}},
    {QLatin1String("complexEigenvalue"),
     {AnalysisType::ComplexEigenvalueFamily, AnalysisType::ComplexEigenvalueKind}},
}};

SolverType ReadType(const JsonSection& section)
{
    const QString text = section.GivenText(TypeKey);
    const auto found = std::find_if(TypeWords.begin(), TypeWords.end(),
                                    [&](const TypeWord& known) { return known.word == text; });
    if (found == TypeWords.end())
        section.Fail(JsonError::tr("is of the unknown type %1").arg(Quoted(text)));
    return found->type;
}

// The place of an entry that has a name, for messages.
QString NamedPlace(const QString& nameless, const QJsonValue& json)
{
    return JsonError::tr("%1, %2,").arg(nameless,
                                        Quoted(json.toObject().value(NameKey).toString()));
}

// The dialog stores any range; CheckSetup() reports one that cannot be solved.
FrequencyRange ReadFrequencies(const QJsonValue& json)
{
    const JsonSection section(JsonError::tr("\"frequencies\" of the analysis"), json,
                              {MinKey, MaxKey, NumberKey});
    FrequencyRange range;
    if (section.Has(MinKey))
        range.min = section.Number(MinKey);
    if (section.Has(MaxKey))
        range.max = section.Number(MaxKey);
    if (section.Has(NumberKey)) {
        const double number = section.Number(NumberKey);
        if (std::abs(number) > std::numeric_limits<int>::max() || number != std::floor(number))
            section.FailAt(NumberKey, JsonError::tr("a whole number"));
        range.number = int(number);
    }
    return range;
}

PropertyDefinition ReadProperty(const QJsonValue& json, int number)
{
    const QString place = NamedPlace(JsonError::tr("property %1").arg(number), json);
    const JsonSection section(place, json, {NameKey, MaterialKey, ThicknessKey, FacesKey});
    PropertyDefinition property;
    property.name = section.NeededText(NameKey);
    property.material = section.Text(MaterialKey);
    property.thickness = section.Expression(ThicknessKey);
    property.faces = ReadFaceReferences(place, section, FacesKey);
    if (!property.faces.empty() && property.thickness.isEmpty())
        section.Fail(JsonError::tr("has faces, but no \"thickness\""));
    return property;
}

ConstraintDefinition ReadConstraint(const QJsonValue& json, int number)
{
    const QString place = NamedPlace(JsonError::tr("constraint %1").arg(number), json);
    const JsonSection section(place, json, {NameKey, HeldKey, FacesKey, EdgesKey});
    ConstraintDefinition constraint;
    constraint.name = section.NeededText(NameKey);
    const QStringList held = section.Texts(HeldKey);
    for (const QString& word : held) {
        const auto found = std::find(FreedomWords.begin(), FreedomWords.end(), word);
        if (found == FreedomWords.end())
            section.Fail(JsonError::tr("holds the unknown degree of freedom %1").arg(Quoted(word)));
        constraint.held[std::size_t(found - FreedomWords.begin())] = true;
    }
    constraint.faces = ReadFaceReferences(place, section, FacesKey);
    constraint.edges = ReadEdgeReferences(place, section, EdgesKey);
    return constraint;
}

LoadDefinition ReadLoad(const QJsonValue& json, int number)
{
    const QString place = NamedPlace(JsonError::tr("load %1").arg(number), json);
    const JsonSection section(place, json, {NameKey, ForceKey, FacesKey, EdgesKey});
    LoadDefinition load;
    load.name = section.NeededText(NameKey);
    load.force = section.Expressions(ForceKey);
    load.faces = ReadFaceReferences(place, section, FacesKey);
    load.edges = ReadEdgeReferences(place, section, EdgesKey);
    if (!load.faces.empty() && !load.edges.empty())
        section.Fail(JsonError::tr("has both \"faces\" and \"edges\"; a load acts on either"));
    return load;
}

LocalMeshDefinition ReadLocalMesh(const QJsonValue& json, int number)
{
    const QString place = JsonError::tr("local mesh %1").arg(number);
    const JsonSection section(place, json, {SizeKey, NumberKey, FacesKey, EdgesKey});
    LocalMeshDefinition mesh;
    mesh.size = section.Expression(SizeKey);
    mesh.number = section.Expression(NumberKey);
    mesh.faces = ReadFaceReferences(place, section, FacesKey);
    mesh.edges = ReadEdgeReferences(place, section, EdgesKey);
    if (mesh.size.isEmpty() == mesh.number.isEmpty())
        section.Fail(JsonError::tr("needs either a \"size\" or a \"number\""));
    if (!mesh.number.isEmpty() && !mesh.faces.empty())
        section.Fail(JsonError::tr("has a \"number\", which is for edges only, and \"faces\""));
    return mesh;
}

template<class Read>
auto ReadList(const JsonSection& section, QLatin1String key, const Read& read)
{
    std::vector<decltype(read(QJsonValue(), 0))> entries;
    const QJsonArray array = section.Array(key);
    for (const QJsonValue& value : array)
        entries.push_back(read(value, int(entries.size()) + 1));
    return entries;
}

template<class Entry>
void CheckNames(const JsonSection& section, QLatin1String key, const std::vector<Entry>& entries,
                QSet<QString>& names)
{
    for (const Entry& entry : entries) {
        if (names.contains(entry.name))
            section.Fail(JsonError::tr("has the name %1 twice in %2").arg(Quoted(entry.name), key));
        names.insert(entry.name);
    }
}

void InsertTargets(QJsonObject& json, const std::vector<FaceReference>& faces,
                   const std::vector<EdgeReference>& edges)
{
    if (!faces.empty())
        json.insert(FacesKey, ToJson(faces));
    if (!edges.empty())
        json.insert(EdgesKey, ToJson(edges));
}

QJsonObject ToJson(const PropertyDefinition& property)
{
    QJsonObject json{{NameKey, property.name}};
    if (!property.material.isEmpty())
        json.insert(MaterialKey, property.material);
    if (!property.thickness.isEmpty())
        json.insert(ThicknessKey, ExpressionToJson(property.thickness));
    InsertTargets(json, property.faces, {});
    return json;
}

QJsonObject ToJson(const ConstraintDefinition& constraint)
{
    QJsonArray held;
    for (std::size_t freedom = 0; freedom < constraint.held.size(); ++freedom) {
        if (constraint.held[freedom])
            held.append(FreedomWords[freedom]);
    }
    QJsonObject json{{NameKey, constraint.name}, {HeldKey, held}};
    InsertTargets(json, constraint.faces, constraint.edges);
    return json;
}

QJsonObject ToJson(const LoadDefinition& load)
{
    QJsonObject json{{NameKey, load.name}, {ForceKey, ExpressionsToJson(load.force)}};
    InsertTargets(json, load.faces, load.edges);
    return json;
}

QJsonObject ToJson(const LocalMeshDefinition& mesh)
{
    QJsonObject json;
    if (!mesh.size.isEmpty())
        json.insert(SizeKey, ExpressionToJson(mesh.size));
    if (!mesh.number.isEmpty())
        json.insert(NumberKey, ExpressionToJson(mesh.number));
    InsertTargets(json, mesh.faces, mesh.edges);
    return json;
}

template<class Entry>
QJsonArray ListToJson(const std::vector<Entry>& entries)
{
    QJsonArray array;
    for (const Entry& entry : entries)
        array.append(ToJson(entry));
    return array;
}

} // namespace

AnalysisDefinition ReadAnalysis(const QJsonValue& json)
{
    const JsonSection section(JsonError::tr("the analysis"), json,
                              {TypeKey, MeshSizeKey, FrequenciesKey, PropertiesKey, ConstraintsKey,
                               LoadsKey, LocalMeshesKey});
    AnalysisDefinition analysis;
    if (section.Has(TypeKey))
        analysis.type = ReadType(section);
    analysis.meshSize = section.Expression(MeshSizeKey);
    if (section.Has(FrequenciesKey))
        analysis.frequencies = ReadFrequencies(section.Value(FrequenciesKey));
    analysis.properties = ReadList(section, PropertiesKey, ReadProperty);
    analysis.constraints = ReadList(section, ConstraintsKey, ReadConstraint);
    analysis.loads = ReadList(section, LoadsKey, ReadLoad);
    analysis.localMeshes = ReadList(section, LocalMeshesKey, ReadLocalMesh);

    QSet<QString> properties;
    CheckNames(section, PropertiesKey, analysis.properties, properties);
    // Boundary conditions and loads share their names, as the dialogs have it.
    QSet<QString> attributes;
    CheckNames(section, ConstraintsKey, analysis.constraints, attributes);
    CheckNames(section, LoadsKey, analysis.loads, attributes);
    return analysis;
}

QJsonObject ToJson(const AnalysisDefinition& analysis)
{
    QJsonObject json;
    for (const TypeWord& known : TypeWords) {
        if (known.type == analysis.type && !(analysis.type == SolverType()))
            json.insert(TypeKey, known.word);
    }
    if (!analysis.meshSize.isEmpty())
        json.insert(MeshSizeKey, ExpressionToJson(analysis.meshSize));
    if (!(analysis.frequencies == FrequencyRange()))
        json.insert(FrequenciesKey, QJsonObject{{MinKey, analysis.frequencies.min},
                                                {MaxKey, analysis.frequencies.max},
                                                {NumberKey, analysis.frequencies.number}});
    const auto insert = [&json](QLatin1String key, const QJsonArray& list) {
        if (!list.isEmpty())
            json.insert(key, list);
    };
    insert(PropertiesKey, ListToJson(analysis.properties));
    insert(ConstraintsKey, ListToJson(analysis.constraints));
    insert(LoadsKey, ListToJson(analysis.loads));
    insert(LocalMeshesKey, ListToJson(analysis.localMeshes));
    return json;
}
