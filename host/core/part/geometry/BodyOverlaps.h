#pragma once

#include <QCoreApplication>
#include <QString>

#include <utility>
#include <vector>

class TopoDS_Shape;

/// Which bodies of a part overlap. Volume and mass count what they share more than once.
struct BodyOverlaps
{
    static constexpr int MaximumPairs = 20; ///< The search ends after these.

    /// The numbers of two bodies each, from 1, in the order of the part.
    std::vector<std::pair<int, int>> pairs;
    /// Whether all bodies were compared. The search is bounded, and the kernel may fail.
    bool isComplete = true;

    /// A warning of one line; empty if no bodies overlap and all were compared.
    QString Warning() const;
    /// Why the part cannot be analysed, in one line: an analysis needs each point in one body at
    /// most. Empty if it can.
    QString AnalysisProblem() const;

    Q_DECLARE_TR_FUNCTIONS(BodyOverlaps)
};

/// Compares the bodies of @p shape with each other. Bodies that only touch do not overlap.
BodyOverlaps FindOverlaps(const TopoDS_Shape& shape);
