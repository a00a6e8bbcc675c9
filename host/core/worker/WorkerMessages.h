#pragma once

#include "FeatureBuilder.h"
#include "LineDrawing.h"
#include "PartPlan.h"
#include "ShapeMeasures.h"
#include "ShapeTargets.h"

#include <QByteArray>
#include <QMetaType>
#include <QSet>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

// What the program and its worker process send each other. Each message is a frame: its length as
// four bytes, the most significant one first, and that many bytes.

/// Asks a worker to build a part.
struct PartRequest
{
    /// Of which feature the STEP file is.
    static constexpr int WholePart = -1;

    PartPlan plan;
    /// Keys of shapes that the sender has. The reply does not repeat them.
    QSet<QByteArray> known;
    bool wantsShapes = true; ///< Whether the reply contains shapes, with triangles for display.
    bool wantsLines = false; ///< Whether the reply contains a drawing of the whole part.
    QString stepPath;        ///< Where to write a STEP file; empty for none.
    int stepFeature = WholePart;

    /// Where to write the whole part as a BREP file without triangles; empty for none. Faces and
    /// edges in it have the same numbers as in TopExp::MapShapes() of the part.
    QString brepPath;
    std::vector<FaceTarget> faces; ///< To be found in the whole part.
    std::vector<EdgeTarget> edges; ///< As well.
};

/// What a target means in the whole part.
struct FoundTarget
{
    std::vector<int> numbers; ///< In TopExp::MapShapes(), from 1, ascending; empty if not found.
    QString error;            ///< Why nothing was found; names the target.
    double area = 0.0;        ///< Of the faces, in mm2.
};

/// What became of a request.
struct PartReply
{
    enum Outcome
    {
        Done,
        Failed,
        Abandoned ///< A newer message arrived.
    };

    Outcome outcome = Done;
    QString cause;         ///< Why it failed: one line, without the feature's name.
    QString failedFeature; ///< Where it failed; empty if not at a feature.
    BuiltPart part;        ///< Shapes only if they were wanted.
    ShapeMeasures measures;
    LineDrawing lines;              ///< Only if it was wanted.
    std::vector<FoundTarget> faces; ///< Of each target of the request, in its order.
    std::vector<FoundTarget> edges; ///< As well.
    /// Of each solid of the whole part, in the order of TopExp::MapShapes(): the feature whose
    /// result it is in, as a place in the plan.
    std::vector<int> solids;
    /// Pairs of solids that touch without sharing a face, from 1; only with a BREP file.
    std::vector<std::pair<int, int>> contacts;
    bool isLast = false; ///< The worker ends after this reply.

    /// Why it failed: one line that names the feature.
    QString Reason() const;
};

Q_DECLARE_METATYPE(PartReply)

/// What a worker sends: first its progress, then the reply.
struct WorkerMessage
{
    int step = 0;                   ///< Of the plan; its size once all features are built.
    std::optional<PartReply> reply; ///< Otherwise the message is about progress.
};

QByteArray ToBytes(const PartRequest& request);
PartRequest RequestFromBytes(const QByteArray& bytes);

QByteArray ProgressToBytes(int step);
bool IsReply(const QByteArray& bytes);
/// Leaves out the shapes that @p request does not want or knows.
QByteArray ToBytes(const PartReply& reply, const PartRequest& request);
/// Takes the shapes that @p request knows from @p known.
WorkerMessage MessageFromBytes(const QByteArray& bytes, const PartRequest& request,
                               const BuiltPart& known);

/// @p message with its length in front.
QByteArray Frame(const QByteArray& message);
/// Removes the first frame from @p bytes and returns its message; nothing if it is incomplete.
std::optional<QByteArray> TakeFrame(QByteArray& bytes);
