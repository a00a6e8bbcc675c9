#pragma once

#include "AnalysisPlan.h"
#include "FiniteElementModel.h"
#include "HostError.h"

#include <QCoreApplication>
#include <QStringList>

/// Why a model cannot be built or solved: one line.
class ModelError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(ModelError)

public:
    using HostError::HostError;
};

/// A model, and what the user should know about it.
struct BuiltModel
{
    FiniteElementModel model;
    QStringList warnings; ///< One line each.
};

/// Gives the elements of @p mesh their sections, its nodes their supports and loads.
/// @throws ModelError if the plan and the mesh do not fit together
BuiltModel BuildModel(Mesh mesh, const AnalysisPlan& plan);

/// How many rigid-body modes the model has.
int CountRigidModes(const FiniteElementModel& model);

/// Checks that a static analysis of @p model has one solution. @p bodies are the names of the
/// shape's solids, or empty. @throws ModelError that says in words which supports or loads are
/// missing
void CheckStatic(const FiniteElementModel& model, const std::vector<QString>& bodies);

/// Checks that the model can vibrate. @throws ModelError if all nodes are held
void CheckVibration(const FiniteElementModel& model);
