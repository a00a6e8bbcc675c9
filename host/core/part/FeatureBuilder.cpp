#include "FeatureBuilder.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BuildInput.h"
#include "FeatureKind.h"
#include "KernelSignals.h"

#include <QCryptographicHash>
#include <Standard_Failure.hxx>

namespace {

TopoDS_Shape Built(const BuildStep& step, const PartPlan& plan, const BuiltPart& part,
                   BodyVolumes& volumes)
{
    std::vector<BuildInput::Body> bodies;
    for (const int input : step.inputs)
        bodies.push_back({plan[std::size_t(input)].name, part.shapes[std::size_t(input)]});
    return step.kind->Built({*step.kind, step.values, bodies, step.file}, volumes);
}

// Makes every failure of @p call one of the feature called @p name.
template<class Call>
auto NamingFeature(const QString& name, const Call& call)
{
    try {
        return GuardKernelCall(call);
    } catch (const FeatureError&) {
        throw;
    } catch (const HostError& error) {
        throw FeatureError(name, error.Reason());
    } catch (const OSD_Signal&) {
        throw FeatureError(name, BuildError::tr("the geometry kernel crashed."));
    } catch (const Standard_Failure& failure) {
        const QString message = QString::fromLocal8Bit(failure.GetMessageString()).simplified();
        throw FeatureError(
            name, message.isEmpty()
                      ? BuildError::tr("the geometry kernel could not build it.")
                      : BuildError::tr("the geometry kernel could not build it: %1").arg(message));
    }
}

// Calls @p visit with each place of a shape of which the part consists.
template<class Visit>
void VisitResults(const PartPlan& plan, const std::vector<TopoDS_Shape>& shapes, const Visit& visit)
{
    std::vector<bool> isUsed(plan.size());
    for (const BuildStep& step : plan) {
        for (const int input : step.inputs)
            isUsed[std::size_t(input)] = true;
    }
    for (std::size_t place = 0; place < plan.size(); ++place) {
        if (!isUsed[place] && !shapes[place].IsNull())
            visit(place);
    }
}

} // namespace

BuiltPart FeatureBuilder::Build(const PartPlan& plan, const Progress& progress)
{
    BuiltPart part;
    int bodies = 0;
    for (const BuildStep& step : plan) {
        NamingFeature(step.name, [&] { Add(step, plan, part, progress); });
        const TopoDS_Shape& shape = part.shapes.back();
        bodies += shape.IsNull() ? 0 : CountBodies(shape);
        // Checked after each feature: many large arrays would use up the memory.
        if (bodies > MaximumBodies)
            throw FeatureError(step.name,
                               BuildError::tr("this feature would exceed the limit of %1 bodies.")
                                   .arg(MaximumBodies));
    }
    part.shape = WholePart(plan, part.shapes);
    return part;
}

BuiltPart FeatureBuilder::Build(const FeatureList& list, const QString& folder)
{
    ResultCache cache;
    return FeatureBuilder(cache).Build(PlanPart(list, folder));
}

void FeatureBuilder::Add(const BuildStep& step, const PartPlan& plan, BuiltPart& part,
                         const Progress& progress)
{
    TopoDS_Shape shape;
    QByteArray key;
    if (step.suppressed) {
        if (!step.inputs.empty()) {
            shape = part.shapes[std::size_t(step.inputs.front())];
            key = part.keys[std::size_t(step.inputs.front())];
        }
    } else {
        key = KeyOf(step, part);
        shape = m_cache.Find(key);
        if (shape.IsNull()) {
            if (progress)
                progress(int(part.shapes.size()));
            shape = Built(step, plan, part, m_volumes);
            m_cache.Keep(key, shape);
        }
    }
    part.shapes.push_back(shape);
    part.keys.push_back(key);
}

QByteArray FeatureBuilder::KeyOf(const BuildStep& step, const BuiltPart& part)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(step.kind->word.data(), step.kind->word.size());
    const auto addPart = [&hash](const QByteArray& bytes) {
        hash.addData(QByteArray::number(bytes.size()) + ' ' + bytes);
    };
    addPart(QByteArray::fromRawData(reinterpret_cast<const char*>(step.values.data()),
                                    int(step.values.size() * sizeof(double))));
    for (const int input : step.inputs)
        addPart(part.keys[std::size_t(input)]);
    if (step.kind->readsFile)
        addPart(m_cache.ContentHash(step.file));
    return hash.result();
}

TopoDS_Shape WholePart(const PartPlan& plan, const std::vector<TopoDS_Shape>& shapes)
{
    std::vector<TopoDS_Shape> results;
    VisitResults(plan, shapes, [&](std::size_t place) { results.push_back(shapes[place]); });
    if (results.empty())
        return {};
    return results.size() == 1 ? results.front() : Compound(results);
}
