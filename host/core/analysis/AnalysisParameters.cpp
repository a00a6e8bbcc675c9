#include "AnalysisParameters.h"

#include "ExpressionNames.h"
#include "JsonSection.h"

#include <QCoreApplication>

#include <algorithm>
#include <initializer_list>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(AnalysisParameters)
};

bool UsesOneOf(const std::initializer_list<QString>& expressions, const QSet<QString>& names)
{
    for (const QString& expression : expressions) {
        const QStringList used = NamesIn(expression);
        if (std::any_of(used.begin(), used.end(),
                        [&names](const QString& name) { return names.contains(name); }))
            return true;
    }
    return false;
}

template<class Record, class Uses>
void RemoveUsers(std::vector<Record>& records, const Uses& uses)
{
    records.erase(std::remove_if(records.begin(), records.end(), uses), records.end());
}

} // namespace

AnalysisDefinition WithRenamedParameter(AnalysisDefinition definition, const QString& before,
                                        const QString& after)
{
    const auto follow = [&](QString& expression) {
        expression = WithRenamed(expression, before, after);
    };
    follow(definition.meshSize);
    for (PropertyDefinition& property : definition.properties)
        follow(property.thickness);
    for (LoadDefinition& load : definition.loads)
        std::for_each(load.force.begin(), load.force.end(), follow);
    for (LocalMeshDefinition& mesh : definition.localMeshes) {
        follow(mesh.size);
        follow(mesh.number);
    }
    return definition;
}

AnalysisDefinition WithoutParameters(AnalysisDefinition definition, const QSet<QString>& names,
                                     QStringList& users)
{
    if (UsesOneOf({definition.meshSize}, names)) {
        users << Text::tr("mesh size");
        definition.meshSize.clear();
    }
    RemoveUsers(definition.properties, [&](const PropertyDefinition& property) {
        const bool isUser = UsesOneOf({property.thickness}, names);
        if (isUser)
            users << Text::tr("element property %1").arg(Quoted(property.name));
        return isUser;
    });
    RemoveUsers(definition.loads, [&](const LoadDefinition& load) {
        const bool isUser = UsesOneOf({load.force[0], load.force[1], load.force[2]}, names);
        if (isUser)
            users << Text::tr("load %1").arg(Quoted(load.name));
        return isUser;
    });
    RemoveUsers(definition.localMeshes, [&](const LocalMeshDefinition& mesh) {
        const bool isUser = UsesOneOf({mesh.size, mesh.number}, names);
        if (isUser)
            users << Text::tr("local mesh size");
        return isUser;
    });
    return definition;
}
