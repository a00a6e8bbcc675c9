#include "FeatureBuilder.h"

#include "Axes.h"
#include "Bodies.h"
#include "CombinedBodies.h"
#include "FeatureKinds.h"
#include "FeatureList.h"
#include "FieldValues.h"
#include "JsonSection.h"
#include "KernelSignals.h"
#include "PlacedBodies.h"
#include "Primitives.h"
#include "StepFile.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <Standard_Failure.hxx>

namespace {

/// Builds feature after feature, and keeps their bodies by name.
class Builder
{
public:
    explicit Builder(const QString& folder)
        : m_folder(folder)
    {
    }

    TopoDS_Shape Result(const Feature& feature)
    {
        const TopoDS_Shape shape = feature.suppressed ? StandIn(feature) : Built(feature);
        m_shapes.insert(feature.name, shape);
        return shape;
    }

private:
    TopoDS_Shape StandIn(const Feature& feature) const
    {
        return feature.inputs.isEmpty() ? TopoDS_Shape() : m_shapes.value(feature.inputs.first());
    }

    TopoDS_Shape Built(const Feature& feature)
    {
        const std::vector<double> values = m_values.Of(feature);
        switch (feature.kind) {
        case FeatureKind::Fuse:
        case FeatureKind::Cut:
            return CombinedOf(feature);
        case FeatureKind::Fillet:
            return FilletBody(FirstInput(feature), values[0], PointOf(&values[1]));
        case FeatureKind::StepImport:
            return Unwrapped(ReadStepFile(QDir(m_folder).filePath(feature.file)));
        default:
            return feature.inputs.isEmpty() ? MakePrimitive(feature.kind, values)
                                            : PlaceBody(feature.kind, FirstInput(feature), values);
        }
    }

    TopoDS_Shape FirstInput(const Feature& feature) const
    {
        const QString& name = feature.inputs.first();
        const TopoDS_Shape shape = m_shapes.value(name);
        if (shape.IsNull())
            throw BuildError(BuildError::tr("it uses %1, which is suppressed.").arg(Quoted(name)));
        return shape;
    }

    TopoDS_Shape CombinedOf(const Feature& feature) const
    {
        const TopoDS_Shape first = FirstInput(feature);
        std::vector<TopoDS_Shape> tools;
        for (int input = 1; input < feature.inputs.size(); ++input) {
            const TopoDS_Shape tool = m_shapes.value(feature.inputs[input]);
            if (!tool.IsNull())
                tools.push_back(tool);
        }
        if (tools.empty())
            return first;
        return feature.kind == FeatureKind::Fuse ? FuseBodies(first, tools)
                                                 : CutBodies(first, tools);
    }

    QString m_folder;
    FieldValues m_values;
    QHash<QString, TopoDS_Shape> m_shapes;
};

// Whatever goes wrong while @p step works on @p feature names it.
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
        // Before many large arrays have used up the memory.
        if (bodies > MaximumBodies)
            throw FeatureError(
                feature.name,
                BuildError::tr("with it, all features together would have more than %1 bodies.")
                    .arg(MaximumBodies));
        for (const QString& input : feature.inputs)
            used.insert(input);
    }

    std::vector<TopoDS_Shape> results;
    for (int index = 0; index < list.Size(); ++index) {
        const TopoDS_Shape& shape = part.shapes[std::size_t(index)];
        if (shape.IsNull() || used.contains(list.At(index).name))
            continue;
        NamingFeature(list.At(index), [&] { CheckBodies(shape); });
        results.push_back(shape);
    }
    if (results.size() == 1)
        part.shape = results.front();
    else if (!results.empty())
        part.shape = Compound(results);
    return part;
}
