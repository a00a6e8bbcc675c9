#include "RigidMotions.h"

#include "ElementShapes.h"
#include "NumberTexts.h"

#include <QStringList>

#include <math_Jacobi.hxx>
#include <math_Matrix.hxx>

#include <algorithm>

namespace {

constexpr std::size_t Freedoms = 6;
constexpr double Tolerance = 1e-9; // Of the squares of singular values, against the greatest one.
constexpr double Small = 1e-5;

// Turns first, then moves.
using Motion = std::array<double, Freedoms>;

struct Extent
{
    Vector3 middle{};
    double size = 1.0;
};

// Of the nodes that are held: supports on a small face hold a large part as well.
Extent ExtentOf(const FiniteElementModel& model, const std::vector<int>& held)
{
    Extent extent;
    for (const int node : held)
        extent.middle =
            extent.middle + (1.0 / double(held.size())) * model.mesh.nodes[std::size_t(node)];
    double size = 0.0;
    for (const int node : held)
        size = std::max(size, Length(model.mesh.nodes[std::size_t(node)] - extent.middle));
    if (size > 0.0)
        extent.size = size;
    return extent;
}

// Each row says how one held freedom of a node depends on the motion.
std::vector<Motion> Conditions(const FiniteElementModel& model, const std::vector<int>& nodes)
{
    std::vector<int> held;
    std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(held),
                 [&](int node) { return (model.held[std::size_t(node)] & model.Freedoms()) != 0; });
    const Extent extent = ExtentOf(model, held);
    std::vector<Motion> rows;
    for (const int node : held) {
        const Vector3 arm =
            (1.0 / extent.size) * (model.mesh.nodes[std::size_t(node)] - extent.middle);
        const std::array<Vector3, 3> turned = {
            {{0, arm[2], -arm[1]}, {-arm[2], 0, arm[0]}, {arm[1], -arm[0], 0}}};
        for (std::size_t freedom = 0; freedom < Freedoms; ++freedom) {
            if ((model.held[std::size_t(node)] & model.Freedoms() & (1u << freedom)) == 0)
                continue;
            Motion row{};
            if (freedom < 3) {
                std::copy(turned[freedom].begin(), turned[freedom].end(), row.begin());
                row[3 + freedom] = 1.0;
            } else {
                row[freedom - 3] = 1.0;
            }
            rows.push_back(row);
        }
    }
    return rows;
}

std::vector<Motion> MotionsThatMeet(const std::vector<Motion>& conditions)
{
    math_Matrix squares(1, Freedoms, 1, Freedoms, 0.0);
    for (const Motion& row : conditions) {
        for (std::size_t i = 0; i < Freedoms; ++i) {
            for (std::size_t k = 0; k < Freedoms; ++k)
                squares(int(i) + 1, int(k) + 1) += row[i] * row[k] / double(conditions.size());
        }
    }
    const math_Jacobi eigen(squares);
    double greatest = 0.0;
    for (int i = 1; i <= int(Freedoms); ++i)
        greatest = std::max(greatest, eigen.Value(i));
    std::vector<Motion> motions;
    for (int i = 1; i <= int(Freedoms); ++i) {
        if (eigen.Value(i) > Tolerance * greatest)
            continue;
        Motion motion{};
        for (std::size_t k = 0; k < Freedoms; ++k)
            motion[k] = eigen.Vectors()(int(k) + 1, i);
        motions.push_back(motion);
    }
    return motions;
}

// Simplest combinations of the motions: each leads with a 1 where all others have a 0.
void Reduce(std::vector<Motion>& motions)
{
    std::size_t next = 0;
    for (std::size_t column = 0; column < Freedoms && next < motions.size(); ++column) {
        const auto best = std::max_element(motions.begin() + std::ptrdiff_t(next), motions.end(),
                                           [column](const Motion& a, const Motion& b) {
                                               return std::abs(a[column]) < std::abs(b[column]);
                                           });
        if (std::abs((*best)[column]) < Small)
            continue;
        std::swap(*best, motions[next]);
        Motion& lead = motions[next];
        const double factor = lead[column];
        for (double& entry : lead)
            entry /= factor;
        for (Motion& other : motions) {
            if (&other == &lead)
                continue;
            const double share = other[column];
            for (std::size_t k = 0; k < Freedoms; ++k)
                other[k] -= share * lead[k];
        }
        ++next;
    }
}

QString DirectionText(const Vector3& direction)
{
    const std::array<QString, 3> names = {QStringLiteral("x"), QStringLiteral("y"),
                                          QStringLiteral("z")};
    QStringList parts;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        Vector3 unit{};
        unit[axis] = 1.0;
        if (Length(direction - unit) < Small)
            return names[axis];
        parts << ShortText(std::abs(direction[axis]) < Small ? 0.0 : direction[axis]);
    }
    return QLatin1Char('(') + parts.join(QStringLiteral(", ")) + QLatin1Char(')');
}

} // namespace

RigidMotions::RigidMotions(const FiniteElementModel& model, const std::vector<int>& nodes)
{
    std::vector<Motion> motions = MotionsThatMeet(Conditions(model, nodes));
    Reduce(motions);
    for (const Motion& motion : motions) {
        const Vector3 turn = {motion[0], motion[1], motion[2]};
        if (Length(turn) > Small)
            m_turns.push_back(turn);
        else
            m_moves.push_back({motion[3], motion[4], motion[5]});
    }
}

QString RigidMotions::Words() const
{
    const auto listed = [](const std::vector<Vector3>& directions) {
        QStringList texts;
        for (const Vector3& direction : directions)
            texts << DirectionText(direction);
        const QString last = texts.takeLast();
        return texts.isEmpty() ? last : tr("%1 and %2").arg(texts.join(QStringLiteral(", ")), last);
    };
    if (Count() == 0)
        return {};
    if (m_turns.empty())
        return tr("free to move along %1").arg(listed(m_moves));
    if (m_moves.empty())
        return tr("free to turn about %1").arg(listed(m_turns));
    return tr("free to move along %1 and to turn about %2").arg(listed(m_moves), listed(m_turns));
}
