#pragma once

#include "Feature.h"

#include <QCoreApplication>
#include <QLatin1String>

#include <optional>
#include <vector>

/// Which values a field takes.
struct FieldRule
{
    enum Unit
    {
        Millimetres,
        Degrees,
        Number,
        Count ///< Whole numbers only.
    };

    double least;
    double greatest;
    Unit unit = Millimetres;
    bool exclusiveMinimum = false; ///< The least value itself is not allowed.
    bool exclusiveMaximum = false; ///< The greatest value itself is not allowed.
    bool isZeroAllowed = false;    ///< Zero is allowed although it is below the least.

    bool Allows(double value) const;
    /// "from 1 to 10000", "above 0 and at most 360 degrees": what follows "has to be".
    QString Text() const;
};

/// One numeric field of a kind.
struct FieldKind
{
    QLatin1String key;         ///< In files.
    const char* label;         ///< For people; FeatureKinds::Label() translates it.
    QLatin1String defaultText; ///< What a new feature has.
    FieldRule rule;
};

/// All kinds of features: their names, inputs and fields.
class FeatureKinds
{
    Q_DECLARE_TR_FUNCTIONS(FeatureKinds)

public:
    static constexpr int AnyNumber = -1; ///< Of inputs.

    struct Entry
    {
        FeatureKind kind;
        QLatin1String word; ///< In files.
        const char* title;  ///< For people; Title() translates it.
        int leastInputs;
        int mostInputs; ///< Or AnyNumber.
        std::vector<FieldKind> fields;
    };

    FeatureKinds() = delete;

    /// In the order of FeatureKind.
    static const std::vector<Entry>& All();
    static const Entry& Of(FeatureKind kind);
    /// The kind that is called @p word in files.
    static std::optional<FeatureKind> FromWord(const QString& word);

    static QString Title(FeatureKind kind);
    static QString Label(const FieldKind& field);

    /// A feature with the default texts in its fields, without name and inputs.
    static Feature MakeFeature(FeatureKind kind);
};
