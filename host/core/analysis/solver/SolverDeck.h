#pragma once

#include "FiniteElementModel.h"

#include <QByteArray>

/// What is to be computed.
struct DeckStep
{
    bool isStatic = false;
    int modes = 0; ///< How many of the lowest modes, rigid-body modes included; if not static.
};

/// The deck of CalculiX. All names in it are generated.
QByteArray SolverDeck(const FiniteElementModel& model, const DeckStep& step);

/// How many modes a deck asks for; 0 if it is not one of vibration.
int ModesAskedBy(const QByteArray& deck);
