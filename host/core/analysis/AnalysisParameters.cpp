#include "AnalysisParameters.h"

#include "ExpressionNames.h"
#include "JsonSection.h"
#include "ParameterUse.h"

#include <QCoreApplication>

#include <algorithm>
#include <type_traits>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(AnalysisParameters)
};

template<class Record>
void VisitTargets(Record& record, const ExpressionVisitor& visit)
{
    for (FaceReference& face : record.faces)
        VisitExpressions(face, visit);
    if constexpr (!std::is_same_v<Record, PropertyDefinition>) {
        for (EdgeReference& edge : record.edges)
            VisitExpressions(edge, visit);
    }
}

void VisitRecord(PropertyDefinition& property, const ExpressionVisitor& visit)
{
    visit(property.thickness);
    VisitTargets(property, visit);
}

void VisitRecord(ConstraintDefinition& constraint, const ExpressionVisitor& visit)
{
    VisitTargets(constraint, visit);
}

void VisitRecord(LoadDefinition& load, const ExpressionVisitor& visit)
{
    std::for_each(load.force.begin(), load.force.end(), visit);
    VisitTargets(load, visit);
}

void VisitRecord(LocalMeshDefinition& mesh, const ExpressionVisitor& visit)
{
    visit(mesh.size);
    visit(mesh.number);
    VisitTargets(mesh, visit);
}

template<class Record>
void VisitRecords(std::vector<Record>& records, const ExpressionVisitor& visit)
{
    for (Record& record : records)
        VisitRecord(record, visit);
}

/// Removes the records that use parameters, and calls @p note with each.
template<class Record, class Note>
void RemoveUsers(std::vector<Record>& records, const QSet<QString>& names, const Note& note)
{
    const auto uses = [&](const Record& record) {
        bool isUser = false;
        Record visited = record;
        VisitRecord(visited, [&](const QString& expression) {
            isUser = isUser || UsesParameter(expression, names);
        });
        if (isUser)
            note(record);
        return isUser;
    };
    records.erase(std::remove_if(records.begin(), records.end(), uses), records.end());
}

} // namespace

AnalysisDefinition WithRenamedParameter(AnalysisDefinition definition, const QString& before,
                                        const QString& after)
{
    const auto follow = [&](QString& expression) {
        expression = tarn::WithRenamed(expression, before, after);
    };
    follow(definition.meshSize);
    VisitRecords(definition.properties, follow);
    VisitRecords(definition.constraints, follow);
    VisitRecords(definition.loads, follow);
    VisitRecords(definition.localMeshes, follow);
    return definition;
}

AnalysisDefinition WithoutParameters(AnalysisDefinition definition, const QSet<QString>& names,
                                     QStringList& users)
{
    if (UsesParameter(definition.meshSize, names)) {
        users << Text::tr("mesh size");
        definition.meshSize.clear();
    }
    RemoveUsers(definition.properties, names, [&users](const PropertyDefinition& property) {
        users << Text::tr("element property %1").arg(Quoted(property.name));
    });
    RemoveUsers(definition.constraints, names, [&users](const ConstraintDefinition& constraint) {
        users << Text::tr("support %1").arg(Quoted(constraint.name));
    });
    RemoveUsers(definition.loads, names, [&users](const LoadDefinition& load) {
        users << Text::tr("load %1").arg(Quoted(load.name));
    });
    RemoveUsers(definition.localMeshes, names,
                [&users](const LocalMeshDefinition&) { users << Text::tr("local mesh size"); });
    return definition;
}
