#include "FeatureBuilder.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BuildInput.h"
#include "FeatureKind.h"
#include "FeatureList.h"
#include "FieldValues.h"
#include "KernelSignals.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <Standard_Failure.hxx>

namespace {

/// Builds one feature after another, and keeps their bodies by name.
class Builder
{
public:
    explicit Builder(const QString& folder)
        : m_folder(folder)
    {
    }

    TopoDS_Shape Result(const Feature& feature)
    {
        const TopoDS_Shape shape =
            feature.suppressed ? m_shapes.value(feature.inputs.value(0)) : Built(feature);
        m_shapes.insert(feature.name, shape);
        return shape;
    }

private:
    TopoDS_Shape Built(const Feature& feature)
    {
        std::vector<BuildInput::Body> bodies;
        for (const QString& input : feature.inputs)
            bodies.push_back({input, m_shapes.value(input)});
        return feature.kind->Built(
            {*feature.kind, m_values.Of(feature), bodies, QDir(m_folder).filePath(feature.file)},
            m_volumes);
    }

    QString m_folder;
    FieldValues m_values;
    BodyVolumes m_volumes;
    QHash<QString, TopoDS_Shape> m_shapes;
};

// Makes every failure of @p step one of @p feature.
template<class Step>
auto NamingFeature(const Feature& feature, const Step& step)
{
    try {
        return GuardKernelCall(step);
    } catch (const FeatureError&) {
        throw;
    } catch (const HostError& error) {
        throw FeatureError(feature.name, error.Reason());
    } catch (const Standard_Failure& failure) {
        const QString message = QString::fromLocal8Bit(failure.GetMessageString()).simplified();
        throw FeatureError(
            feature.name,
            message.isEmpty()
                ? BuildError::tr("the geometry kernel could not build it.")
                : BuildError::tr("the geometry kernel could not build it: %1").arg(message));
    }
}

} // namespace

BuiltPart FeatureBuilder::Build(const FeatureList& list, const QString& folder)
{
    list.Check();
    BuiltPart part;
    Builder builder(folder);
    QSet<QString> used;
    int bodies = 0;
    for (const Feature& feature : list.Features()) {
        part.shapes.push_back(NamingFeature(feature, [&] { return builder.Result(feature); }));
        bodies += part.shapes.back().IsNull() ? 0 : CountBodies(part.shapes.back());
        // Checked after each feature: many large arrays would use up the memory.
        if (bodies > MaximumBodies)
            throw FeatureError(feature.name,
                               BuildError::tr("this feature would exceed the limit of %1 bodies.")
                                   .arg(MaximumBodies));
        for (const QString& input : feature.inputs)
            used.insert(input);
    }

    std::vector<TopoDS_Shape> results;
    for (int index = 0; index < list.Size(); ++index) {
        const TopoDS_Shape& shape = part.shapes[std::size_t(index)];
        if (shape.IsNull() || used.contains(list.At(index).name))
            continue;
        results.push_back(shape);
    }
    if (results.size() == 1)
        part.shape = results.front();
    else if (!results.empty())
        part.shape = Compound(results);
    return part;
}
