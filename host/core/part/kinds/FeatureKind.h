#pragma once

#include "FaceOrigins.h"
#include "FieldRule.h"

#include <QLatin1String>

#include <vector>

class BodyVolumes;
class BuildInput;

/// One numeric field of a kind.
struct FieldDefinition
{
    QLatin1String key;         ///< In files.
    const char* label;         ///< For people; Label() translates it.
    QLatin1String defaultText; ///< Of a new feature.
    FieldRule rule;
    bool isOptional = false; ///< Files leave it out where it has its default text.

    FieldDefinition(const char* fieldKey, const char* fieldLabel, const char* fieldDefault,
                    const FieldRule& fieldRule)
        : key(fieldKey)
        , label(fieldLabel)
        , defaultText(fieldDefault)
        , rule(fieldRule)
    {
    }

    QString Label() const;
};

/// Where menus offer a kind.
enum class FeatureGroup
{
    Body,
    Import,
    Transform,
    Array,
    Edge, ///< What changes edges of a body.
    Combination
};

/// What a feature does: everything about it except for the dialog that asks for its fields.
struct FeatureKind
{
    static constexpr int Unlimited = -1; ///< As maxInputs.

    QLatin1String word; ///< In files.
    const char* title;  ///< For people; Title() translates it.
    FeatureGroup group;
    int minInputs = 0; ///< Earlier features that it uses.
    int maxInputs = 0;
    std::vector<FieldDefinition> fields;
    bool readsFile = false; ///< It has a file.
    bool isAtFace = false;  ///< It has a face of its input, or x, y, z are a point on it.
    bool isAtEdges = false; ///< It has edges of its input, or x, y, z are a point on one.
    bool hasProfile = false;
    bool isPlaced = false; ///< Fields move and turn the result, see MakePlaced().
    TracedShape (*build)(const BuildInput& input) = nullptr; ///< @throws BuildError
    /// Checks what is true of the results of this kind only; null if there is no such rule.
    /// @throws BuildError
    void (*check)(const BuildInput& input, const TopoDS_Shape& result,
                  BodyVolumes& volumes) = nullptr;

    FeatureKind(const char* kindWord, const char* kindTitle, FeatureGroup kindGroup)
        : word(kindWord)
        , title(kindTitle)
        , group(kindGroup)
    {
    }

    QString Title() const;
    /// Builds the result and checks it. @p volumes may know the bodies of @p input already.
    /// @throws BuildError
    TracedShape Built(const BuildInput& input, BodyVolumes& volumes) const;
    /// Whether edges or a face take the place of @p field.
    bool IsPosition(const FieldDefinition& field) const;
    /// The place of the field called @p key in files, or the number of fields.
    std::size_t IndexOf(const char* key) const;
};
