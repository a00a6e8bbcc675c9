#include "FeatureKinds.h"

#include <algorithm>

const std::vector<FeatureKind>& FeatureKinds::All()
{
    static const std::vector<FeatureKind> all = [] {
        std::vector<FeatureKind> kinds;
        for (const auto family :
             {Primitives, Profiles, Imports, Transforms, Arrays, Combinations, EdgeFeatures}) {
            const std::vector<FeatureKind> more = family();
            kinds.insert(kinds.end(), more.begin(), more.end());
        }
        return kinds;
    }();
    return all;
}

const FeatureKind* FeatureKinds::Find(const QString& word)
{
    const auto found = std::find_if(All().begin(), All().end(),
                                    [&](const FeatureKind& kind) { return word == kind.word; });
    return found == All().end() ? nullptr : &*found;
}
