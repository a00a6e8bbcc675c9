// The kinds that read a body from a file.

#include "Bodies.h"
#include "BuildInput.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"
#include "StepFile.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

namespace {

FeatureKind StepImport()
{
    FeatureKind kind("import", QT_TRANSLATE_NOOP("FeatureKinds", "STEP import"),
                     FeatureGroup::Import);
    kind.readsFile = true;
    kind.build = [](const BuildInput& input) {
        const TopoDS_Shape shape = Unwrapped(ReadStepFile(input.File()));
        TopTools_IndexedMapOfShape faces;
        TopExp::MapShapes(shape, TopAbs_FACE, faces);
        FaceTrace trace;
        for (int number = 1; number <= faces.Extent(); ++number)
            trace.AddNew(faces(number), QStringLiteral("face%1").arg(number));
        return trace.Of(shape);
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Imports()
{
    return {StepImport()};
}
