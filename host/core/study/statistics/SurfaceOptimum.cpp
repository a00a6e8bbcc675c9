#include "SurfaceOptimum.h"

#include "HostError.h"
#include "SobolSequence.h"

#include <QCoreApplication>

#include <nlopt.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <type_traits>

namespace {

struct OptimumTexts
{
    Q_DECLARE_TR_FUNCTIONS(SurfaceOptimum)
};

constexpr double Tolerance = 1e-10;
// By how much of its spread a response may pass its limit.
constexpr double LimitTolerance = 1e-6;
constexpr int MaximumSteps = 500;
constexpr int MinimumStarts = 32;

// A function that must not be above 0, or that is to be as small as possible:
// sign * (surface - offset) / scale, over parameters from 0 to 1.
struct Term
{
    const ResponseSurface* surface = nullptr;
    double sign = 1.0;
    double offset = 0.0;
    double scale = 1.0;
};

std::vector<double> PointAt(const DesignRanges& ranges, const double* place)
{
    std::vector<double> point(ranges.size());
    for (std::size_t i = 0; i < ranges.size(); ++i)
        point[i] = ranges[i].least + place[i] * (ranges[i].greatest - ranges[i].least);
    return point;
}

// How much a surface can change between the corners, roughly.
double SpreadOf(const ResponseSurface& surface)
{
    const ResponseSurface::Coefficients& terms = surface.Scaled();
    double spread = 0.0;
    for (const std::vector<double>* part : {&terms.linear, &terms.squares, &terms.products})
        for (double term : *part)
            spread += std::abs(term);
    return spread > 0.0 ? spread : 1.0;
}

double Evaluate(unsigned count, const double* place, double* gradient, void* data)
{
    const Term& term = *static_cast<const Term*>(data);
    const DesignRanges& ranges = term.surface->Ranges();
    const std::vector<double> point = PointAt(ranges, place);
    if (gradient) {
        const std::vector<double> slopes = term.surface->GradientAt(point);
        for (unsigned i = 0; i < count; ++i)
            gradient[i] =
                term.sign * slopes[i] * (ranges[i].greatest - ranges[i].least) / term.scale;
    }
    return term.sign * (term.surface->ValueAt(point) - term.offset) / term.scale;
}

class Search
{
public:
    Search(const ResponseSurface& goal, Aim aim, const std::vector<SurfaceLimit>& limits)
        : m_goal{&goal, aim == Aim::Least ? 1.0 : -1.0, 0.0, SpreadOf(goal)}
        , m_solver(nlopt_create(NLOPT_LD_SLSQP, unsigned(goal.Ranges().size())))
    {
        m_limits.reserve(2 * limits.size());
        for (const SurfaceLimit& limit : limits) {
            const double scale = SpreadOf(limit.surface);
            if (std::isfinite(limit.greatest))
                m_limits.push_back({&limit.surface, 1.0, limit.greatest, scale});
            if (std::isfinite(limit.least))
                m_limits.push_back({&limit.surface, -1.0, limit.least, scale});
        }
        nlopt_set_lower_bounds1(m_solver.get(), 0.0);
        nlopt_set_upper_bounds1(m_solver.get(), 1.0);
        nlopt_set_xtol_rel(m_solver.get(), Tolerance);
        nlopt_set_ftol_rel(m_solver.get(), Tolerance * Tolerance);
        nlopt_set_maxeval(m_solver.get(), MaximumSteps);
        nlopt_set_min_objective(m_solver.get(), Evaluate, &m_goal);
        for (Term& limit : m_limits)
            nlopt_add_inequality_constraint(m_solver.get(), Evaluate, &limit, 0.0);
    }

    void Start(std::vector<double> place)
    {
        double value = 0.0;
        // How it ends does not matter: the place is judged.
        (void)nlopt_optimize(m_solver.get(), place.data(), &value);
        for (double& x : place)
            x = std::isfinite(x) ? std::clamp(x, 0.0, 1.0) : 0.0;
        if (!Keeps(place))
            return;
        value = Evaluate(0, place.data(), nullptr, &m_goal);
        if (m_best.empty() || value < m_value) {
            m_best = place;
            m_value = value;
        }
    }

    // Empty if no place keeps the limits.
    const std::vector<double>& Best() const { return m_best; }

private:
    bool Keeps(const std::vector<double>& place)
    {
        return std::all_of(m_limits.begin(), m_limits.end(), [&](Term& limit) {
            return Evaluate(0, place.data(), nullptr, &limit) <= LimitTolerance;
        });
    }

    struct Destroy
    {
        void operator()(nlopt_opt solver) const { nlopt_destroy(solver); }
    };

    Term m_goal;
    std::vector<Term> m_limits;
    std::unique_ptr<std::remove_pointer_t<nlopt_opt>, Destroy> m_solver;
    std::vector<double> m_best;
    double m_value = 0.0;
};

// The middle, and points that are spread evenly.
DesignRuns StartsOf(std::size_t parameters)
{
    constexpr double Middle = 0.5;
    const DesignRanges cube(std::min(parameters, std::size_t(SobolSequence::MaximumDimensions)));
    DesignRuns starts = SobolPoints(cube, std::max(MinimumStarts, 4 * int(parameters)), {});
    starts.insert(starts.begin(), std::vector<double>(parameters, Middle));
    for (std::vector<double>& start : starts)
        start.resize(parameters, Middle);
    return starts;
}

} // namespace

SurfaceOptimum FindOptimum(const ResponseSurface& goal, Aim aim,
                           const std::vector<SurfaceLimit>& limits)
{
    Search search(goal, aim, limits);
    for (const std::vector<double>& start : StartsOf(goal.Ranges().size()))
        search.Start(start);
    if (search.Best().empty())
        throw HostError(OptimumTexts::tr("no point within the ranges of the parameters keeps all "
                                         "limits; widen a limit or a range"));
    SurfaceOptimum optimum;
    optimum.point = PointAt(goal.Ranges(), search.Best().data());
    optimum.value = goal.ValueAt(optimum.point);
    for (const SurfaceLimit& limit : limits)
        optimum.limited.push_back(limit.surface.ValueAt(optimum.point));
    return optimum;
}
