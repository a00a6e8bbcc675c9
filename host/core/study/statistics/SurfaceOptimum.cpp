#include "SurfaceOptimum.h"

#include "HostError.h"
#include "SobolSequence.h"

#include <QCoreApplication>

#include <nlopt.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

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
// How far a value may be from a whole number that it stands for.
constexpr double WholeTolerance = 1e-6;
// Of whole numbers; some milliseconds each.
constexpr int MaximumBranches = 500;

// A function that must not be above 0, or that is to be as small as possible:
// sign * (surface - offset) / scale, over parameters from 0 to 1.
struct Term
{
    const ResponseSurface* surface = nullptr;
    double sign = 1.0;
    double offset = 0.0;
    double scale = 1.0;
};

/// The values of the parameters among which one search looks.
using Box = std::vector<ParameterChoice>;

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

struct Candidate
{
    std::vector<double> point;
    double value = 0.0; // Of the goal, scaled; the least is the best.
};

/// Looks for the best point of a box.
class Search
{
public:
    Search(const ResponseSurface& goal, Aim aim, const std::vector<SurfaceLimit>& limits)
        : m_ranges(goal.Ranges())
        , m_goal{&goal, aim == Aim::Least ? 1.0 : -1.0, 0.0, SpreadOf(goal)}
        , m_starts(StartsOf(m_ranges.size()))
        , m_solver(nlopt_create(NLOPT_LD_SLSQP, unsigned(m_ranges.size())))
    {
        m_limits.reserve(2 * limits.size());
        for (const SurfaceLimit& limit : limits) {
            const double scale = SpreadOf(limit.surface);
            if (std::isfinite(limit.greatest))
                m_limits.push_back({&limit.surface, 1.0, limit.greatest, scale});
            if (std::isfinite(limit.least))
                m_limits.push_back({&limit.surface, -1.0, limit.least, scale});
        }
        nlopt_set_xtol_rel(m_solver.get(), Tolerance);
        nlopt_set_ftol_rel(m_solver.get(), Tolerance * Tolerance);
        nlopt_set_maxeval(m_solver.get(), MaximumSteps);
        nlopt_set_min_objective(m_solver.get(), Evaluate, &m_goal);
        for (Term& limit : m_limits)
            nlopt_add_inequality_constraint(m_solver.get(), Evaluate, &limit, 0.0);
    }

    // Nothing if no point keeps the limits.
    std::optional<Candidate> BestIn(const Box& box)
    {
        std::vector<double> least;
        std::vector<double> greatest;
        for (std::size_t i = 0; i < box.size(); ++i) {
            least.push_back(PlaceOf(i, box[i].least));
            greatest.push_back(PlaceOf(i, box[i].greatest));
        }
        nlopt_set_lower_bounds(m_solver.get(), least.data());
        nlopt_set_upper_bounds(m_solver.get(), greatest.data());
        std::optional<Candidate> best;
        for (std::vector<double> place : m_starts) {
            for (std::size_t i = 0; i < place.size(); ++i)
                place[i] = least[i] + place[i] * (greatest[i] - least[i]);
            double value = 0.0;
            // How it ends does not matter: the place is judged.
            (void)nlopt_optimize(m_solver.get(), place.data(), &value);
            for (std::size_t i = 0; i < place.size(); ++i)
                place[i] = std::isfinite(place[i]) ? std::clamp(place[i], least[i], greatest[i])
                                                   : least[i];
            if (!Keeps(place))
                continue;
            value = Evaluate(0, place.data(), nullptr, &m_goal);
            if (!best || value < best->value)
                best = Candidate{Within(box, PointAt(m_ranges, place.data())), value};
        }
        return best;
    }

private:
    // From 0 to 1.
    double PlaceOf(std::size_t parameter, double value) const
    {
        const DesignRange& range = m_ranges[parameter];
        const double width = range.greatest - range.least;
        return width > 0.0 ? (value - range.least) / width : 0.0;
    }

    // Without rounding errors at the ends.
    static std::vector<double> Within(const Box& box, std::vector<double> point)
    {
        for (std::size_t i = 0; i < point.size(); ++i)
            point[i] = std::clamp(point[i], box[i].least, box[i].greatest);
        return point;
    }

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

    const DesignRanges& m_ranges;
    Term m_goal;
    std::vector<Term> m_limits;
    DesignRuns m_starts;
    std::unique_ptr<std::remove_pointer_t<nlopt_opt>, Destroy> m_solver;
};

// What is allowed within the ranges.
Box BoxOf(const DesignRanges& ranges, const std::vector<ParameterChoice>& choices)
{
    Box box(ranges.size());
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        if (i < choices.size())
            box[i] = choices[i];
        box[i].least = std::max(box[i].least, ranges[i].least);
        box[i].greatest = std::min(box[i].greatest, ranges[i].greatest);
        if (box[i].isWhole) {
            box[i].least = std::ceil(box[i].least);
            box[i].greatest = std::floor(box[i].greatest);
        }
    }
    return box;
}

bool IsEmpty(const Box& box)
{
    return std::any_of(box.begin(), box.end(), [](const ParameterChoice& choice) {
        return !(choice.least <= choice.greatest);
    });
}

// Where a parameter is still to become whole; the end where none is.
Box::const_iterator OpenIn(const Box& box)
{
    return std::find_if(box.begin(), box.end(), [](const ParameterChoice& choice) {
        return choice.isWhole && choice.least < choice.greatest;
    });
}

// The box, with another range of one parameter.
Box Part(const Box& box, std::size_t parameter, double least, double greatest)
{
    Box part = box;
    part[parameter].least = least;
    part[parameter].greatest = greatest;
    return part;
}

// Parts of the box that hold all its whole numbers, the most promising last.
std::vector<Box> PartsOf(const Box& box, std::size_t parameter, double value)
{
    const ParameterChoice& choice = box[parameter];
    const double whole = std::round(value);
    if (std::abs(value - whole) <= WholeTolerance * std::max(1.0, std::abs(whole)))
        return {Part(box, parameter, choice.least, whole - 1.0),
                Part(box, parameter, whole + 1.0, choice.greatest),
                Part(box, parameter, whole, whole)};
    return {Part(box, parameter, choice.least, std::floor(value)),
            Part(box, parameter, std::ceil(value), choice.greatest)};
}

std::optional<Candidate> BestWhole(Search& search, const Box& whole)
{
    std::optional<Candidate> best;
    std::vector<Box> open = {whole};
    for (int count = 0; !open.empty(); ++count) {
        if (count == MaximumBranches)
            throw HostError(OptimumTexts::tr("too many whole numbers would have to be tried; "
                                             "narrow the range of a parameter"));
        const Box box = std::move(open.back());
        open.pop_back();
        std::optional<Candidate> found;
        if (!IsEmpty(box))
            found = search.BestIn(box);
        if (!found || (best && found->value >= best->value))
            continue;
        const auto place = OpenIn(box);
        if (place == box.end()) {
            best = std::move(found);
            continue;
        }
        const auto parameter = std::size_t(place - box.begin());
        for (Box& part : PartsOf(box, parameter, found->point[parameter]))
            open.push_back(std::move(part));
    }
    return best;
}

} // namespace

SurfaceOptimum FindOptimum(const ResponseSurface& goal, Aim aim,
                           const std::vector<SurfaceLimit>& limits,
                           const std::vector<ParameterChoice>& choices)
{
    Search search(goal, aim, limits);
    std::optional<Candidate> best = BestWhole(search, BoxOf(goal.Ranges(), choices));
    if (!best)
        throw HostError(OptimumTexts::tr("no point within the ranges of the parameters keeps all "
                                         "limits; widen a limit or a range"));
    SurfaceOptimum optimum;
    optimum.point = std::move(best->point);
    optimum.value = goal.ValueAt(optimum.point);
    for (const SurfaceLimit& limit : limits)
        optimum.limited.push_back(limit.surface.ValueAt(optimum.point));
    return optimum;
}
