#pragma once

#include "SetupCheck.h"
#include "ShapePicker.h"

#include <QObject>

class AnalysisRecords;
class AnalysisTree;

/// Lets the user pick the faces and edges where entries of the set-up apply.
class AnalysisTargets : public QObject
{
    Q_OBJECT

public:
    /// The others must outlive this object.
    AnalysisTargets(AnalysisRecords& model, AnalysisTree& tree, ShapePicker& picker,
                    QObject* parent);
    ~AnalysisTargets() override;

    /// Begins to pick for @p entry, which has to be one of a list.
    void Pick(const AnalysisEntry& entry);

    /// What the entry applies to; empty for entries without targets.
    static ShapePicker::Choice TargetsOf(const AnalysisDefinition& analysis,
                                         const AnalysisEntry& entry);

private:
    void Apply(const AnalysisEntry& entry, const ShapePicker::Choice& choice);

    AnalysisRecords& m_model;
    AnalysisTree& m_tree;
    ShapePicker& m_picker;
};
