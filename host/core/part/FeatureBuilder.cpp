#include "FeatureBuilder.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BuildInput.h"
#include "FeatureKind.h"
#include "KernelSignals.h"
#include "PartFaces.h"

#include <QCryptographicHash>
#include <Standard_Failure.hxx>

#include <algorithm>

namespace {

// Without repetitions, ascending.
std::vector<int> Sorted(std::vector<int> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

std::vector<int> FacesFor(const BuildStep& step, const BuiltPart& part)
{
    std::vector<int> found;
    for (const FaceTarget& target : step.faces) {
        const std::vector<int> faces = PartFaces(part).Faces(step.inputs.front(), target);
        found.insert(found.end(), faces.begin(), faces.end());
    }
    return Sorted(found);
}

std::vector<int> EdgesFor(const BuildStep& step, const BuiltPart& part)
{
    std::vector<int> found;
    for (const EdgeTarget& target : step.edges) {
        const std::vector<int> edges = PartFaces(part).Edges(step.inputs.front(), target);
        found.insert(found.end(), edges.begin(), edges.end());
    }
    return Sorted(found);
}

TracedShape Built(const BuildStep& step, const BuiltPart& part, BodyVolumes& volumes)
{
    std::vector<BuildInput::Body> bodies;
    for (const int input : step.inputs)
        bodies.push_back({part.plan[std::size_t(input)].name, part.shapes[std::size_t(input)]});
    BuildInput::Extras extras;
    extras.file = step.file;
    extras.outline = step.outline;
    extras.findFaces = [&] {
        return FacesFor(step, part);
    };
    extras.findEdges = [&] {
        return EdgesFor(step, part);
    };
    return step.kind->Built({*step.kind, step.values, bodies, extras}, volumes);
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
            try {
                result = Built(step, part, m_cache.Volumes());
            } catch (...) {
                m_cache.ForgetVolumes();
                throw;
            }
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
    const auto addNumbers = [&](const auto& numbers) {
        addPart(QByteArray::fromRawData(reinterpret_cast<const char*>(numbers.data()),
                                        int(numbers.size() * sizeof(numbers[0]))));
    };
    addNumbers(step.values);
    for (const int input : step.inputs)
        addPart(part.keys[std::size_t(input)]);
    // Names may mean other faces while all numbers stay, so what they mean counts.
    const auto addFace = [&](const FaceTarget& target) {
        addPart(target.IsPoint() ? "point" : "faces");
        if (target.IsPoint())
            return addNumbers(target.at);
        if (!part.shapes[std::size_t(step.inputs.front())].IsNull())
            addNumbers(PartFaces(part).Faces(step.inputs.front(), target));
    };
    for (const FaceTarget& target : step.faces)
        addFace(target);
    for (const EdgeTarget& target : step.edges) {
        addPart(target.IsPoint() ? "point" : "edge");
        if (target.IsPoint())
            addNumbers(target.at);
        for (const FaceTarget& face : target.between)
            addFace(face);
    }
    for (const OutlineCorner& corner : step.outline)
        addNumbers(corner.Numbers());
    if (step.kind->readsFile)
        addPart(m_cache.ContentHash(step.file));
    return hash.result();
}
