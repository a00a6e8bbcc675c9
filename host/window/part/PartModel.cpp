#include "PartModel.h"

#include "BuildError.h"
#include "FeatureKind.h"
#include "JsonSection.h"

#include <Standard_Failure.hxx>

/// One change, as the whole list before and after: a list is small, and no detail is lost.
class PartModel::ChangeCommand : public QUndoCommand
{
public:
    ChangeCommand(PartModel& model, const FeatureList& after, const QString& text)
        : QUndoCommand(text)
        , m_model(model)
        , m_before(model.Features())
        , m_after(after)
    {
    }

    void undo() override { m_model.SetFeatures(m_before); }
    void redo() override { m_model.SetFeatures(m_after); }

private:
    PartModel& m_model;
    FeatureList m_before;
    FeatureList m_after;
};

namespace {

QString QuotedNames(const QStringList& names)
{
    QStringList quoted;
    for (const QString& name : names)
        quoted << Quoted(name);
    return quoted.join(QStringLiteral(", "));
}

int Find(const FeatureList& features, const QString& name)
{
    const int index = features.Find(name);
    if (index < 0)
        throw ModellingError(PartModel::tr("There is no feature %1").arg(Quoted(name)));
    return index;
}

// Names are typed in lists of inputs, separated by commas.
void CheckNewName(const QString& name)
{
    if (name.contains(QLatin1Char(',')))
        throw ModellingError(
            PartModel::tr("%1 is not a valid name: it contains a comma").arg(Quoted(name)));
    if (name != name.trimmed())
        throw ModellingError(PartModel::tr("%1 is not a valid name: it begins or ends with a blank")
                                 .arg(Quoted(name)));
}

} // namespace

PartModel::PartModel(QObject* parent)
    : QObject(parent)
{
}

PartModel::~PartModel() = default;

TopoDS_Shape PartModel::ShapeOf(const QString& feature) const
{
    const int index = m_builtFeatures.Find(feature);
    return index < 0 ? TopoDS_Shape() : m_part.shapes[std::size_t(index)];
}

QStringList PartModel::Bodies() const
{
    QStringList bodies;
    for (const Feature& feature : m_features.Features()) {
        if (m_features.UsersOf(feature.name).isEmpty())
            bodies << feature.name;
    }
    return bodies;
}

void PartModel::Open(const FeatureList& features, const std::vector<Condition>& conditions,
                     const QString& folder)
{
    m_undoStack.clear();
    m_conditions = conditions;
    m_folder = folder;
    m_part = BuiltPart();
    m_builtFeatures = FeatureList();
    SetFeatures(features);
}

void PartModel::Rebuild()
{
    SetFeatures(m_features);
}

void PartModel::SetFeatures(const FeatureList& features)
{
    m_features = features;
    m_failure.clear();
    m_failedFeature.clear();
    Build();
    if (HasFailed())
        Q_EMIT BuildFailed(m_failure);
    else
        Q_EMIT PartBuilt();
    Q_EMIT Changed();
}

void PartModel::Build()
{
    try {
        CheckConditions(m_conditions);
        m_part = FeatureBuilder::Build(m_features, m_folder);
        m_builtFeatures = m_features;
    } catch (const FeatureError& error) {
        m_failedFeature = error.FeatureName();
        m_failure = error.Reason();
    } catch (const BuildError& error) {
        m_failure = error.Reason();
    } catch (const Standard_Failure& failure) {
        m_failure = tr("The geometry kernel failed: %1")
                        .arg(QString::fromLocal8Bit(failure.GetMessageString()));
    }
}

void PartModel::Push(const FeatureList& features, const QString& text)
{
    try {
        features.Check();
    } catch (const BuildError& error) {
        throw ModellingError(error.Reason());
    }
    if (features != m_features)
        m_undoStack.push(new ChangeCommand(*this, features, text));
}

void PartModel::Add(const Feature& feature)
{
    FeatureList features = m_features;
    features.Append(feature);
    Push(features, tr("Add %1 %2").arg(feature.kind->Title(), Quoted(feature.name)));
}

void PartModel::Change(const QString& name, const Feature& feature)
{
    if (feature.name != name)
        CheckNewName(feature.name);
    FeatureList features = m_features;
    features.Replace(Find(features, name), feature);
    Push(features, name == feature.name
                       ? tr("Change %1").arg(Quoted(name))
                       : tr("Rename %1 to %2").arg(Quoted(name), Quoted(feature.name)));
}

void PartModel::Move(const QString& name, int steps)
{
    const int from = Find(m_features, name);
    const int to = qBound(0, from + steps, m_features.Size() - 1);
    FeatureList features = m_features;
    features.Move(from, to);
    try {
        Push(features,
             steps < 0 ? tr("Move %1 up").arg(Quoted(name)) : tr("Move %1 down").arg(Quoted(name)));
    } catch (const ModellingError& error) {
        throw ModellingError(tr("Cannot move %1. %2").arg(Quoted(name), error.Reason()));
    }
}

void PartModel::SetSuppressed(const QStringList& names, bool suppressed)
{
    FeatureList features = m_features;
    for (const QString& name : names)
        features.SetSuppressed(Find(features, name), suppressed);
    const QString quoted = QuotedNames(names);
    Push(features, suppressed ? tr("Suppress %1").arg(quoted) : tr("Unsuppress %1").arg(quoted));
}

void PartModel::Remove(const QStringList& names)
{
    FeatureList features = m_features;
    for (const QString& name : names) {
        QStringList users;
        const QStringList all = m_features.UsersOf(name);
        for (const QString& user : all) {
            if (!names.contains(user))
                users << user;
        }
        if (!users.isEmpty())
            throw ModellingError(
                tr("Cannot delete %1: it is used by %2").arg(Quoted(name), QuotedNames(users)));
        features.Remove(Find(features, name));
    }
    Push(features, tr("Delete %1").arg(QuotedNames(names)));
}
