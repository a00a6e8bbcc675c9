#pragma once

#include "FiniteElementModel.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

/// The motions as a rigid body that the supports leave to a part of a model.
class RigidMotions
{
    Q_DECLARE_TR_FUNCTIONS(RigidMotions)

public:
    /// Of the part with these nodes.
    RigidMotions(const FiniteElementModel& model, const std::vector<int>& nodes);

    /// How many there are: 0 to 6.
    int Count() const { return int(m_turns.size() + m_moves.size()); }
    /// In words, such as "free to move along y and to turn about z"; empty if there are none.
    QString Words() const;

private:
    std::vector<Vector3> m_moves; // Directions.
    std::vector<Vector3> m_turns; // Axes of turns, which may be combined with moves.
};
