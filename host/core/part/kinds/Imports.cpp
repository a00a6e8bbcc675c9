// The kinds that read a body from a file.

#include "Bodies.h"
#include "BuildInput.h"
#include "FeatureKinds.h"
#include "StepFile.h"

namespace {

FeatureKind StepImport()
{
    FeatureKind kind("import", QT_TRANSLATE_NOOP("FeatureKinds", "STEP import"),
                     FeatureGroup::Import);
    kind.readsFile = true;
    kind.build = [](const BuildInput& input) {
        return Unwrapped(ReadStepFile(input.File()));
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Imports()
{
    return {StepImport()};
}
