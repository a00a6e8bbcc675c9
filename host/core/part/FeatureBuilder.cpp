#include "FeatureBuilder.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BuildInput.h"
#include "FeatureKind.h"
#include "KernelSignals.h"

#include <QCryptographicHash>
#include <Standard_Failure.hxx>

namespace {

TracedShape Built(const BuildStep& step, const BuiltPart& part, BodyVolumes& volumes)
{
    std::vector<BuildInput::Body> bodies;
    for (const int input : step.inputs)
        bodies.push_back({part.plan[std::size_t(input)].name, part.shapes[std::size_t(input)]});
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

} // namespace

BuiltPart FeatureBuilder::Build(const PartPlan& plan, const Progress& progress)
{
    BuiltPart part;
    part.plan = plan;
    int bodies = 0;
    for (const BuildStep& step : plan) {
        NamingFeature(step.name, [&] { Add(step, part, progress); });
        const TopoDS_Shape& shape = part.shapes.back();
        bodies += shape.IsNull() ? 0 : CountBodies(shape);
        // Checked after each feature: many large arrays would use up the memory.
        if (bodies > MaximumBodies)
            throw FeatureError(step.name,
                               BuildError::tr("this feature would exceed the limit of %1 bodies.")
                                   .arg(MaximumBodies));
    }
    part.JoinResults();
    return part;
}

BuiltPart FeatureBuilder::Build(const FeatureList& list, const QString& folder)
{
    ResultCache cache;
    return FeatureBuilder(cache).Build(PlanPart(list, folder));
}

void FeatureBuilder::Add(const BuildStep& step, BuiltPart& part, const Progress& progress)
{
    TracedShape result;
    QByteArray key;
    if (step.suppressed) {
        if (!step.inputs.empty()) {
            const auto input = std::size_t(step.inputs.front());
            result = {part.shapes[input], part.faces[input]};
            key = part.keys[input];
        }
    } else {
        key = KeyOf(step, part);
        result = m_cache.Find(key);
        if (result.shape.IsNull()) {
            if (progress)
                progress(int(part.shapes.size()));
            result = Built(step, part, m_volumes);
            m_cache.Keep(key, result);
        }
    }
    part.shapes.push_back(result.shape);
    part.faces.push_back(result.faces);
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
