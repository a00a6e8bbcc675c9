#include "ResponseSurface.h"

#include "HostError.h"

#include <QCoreApplication>

#include <Eigen/QR>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>

namespace {

struct SurfaceTexts
{
    Q_DECLARE_TR_FUNCTIONS(ResponseSurface)
};

// 400 MB of numbers.
constexpr std::size_t MaximumNumbers = 50000000;
// Below it a run is taken to determine a term alone.
constexpr double LeastFreedom = 1e-9;

struct Runs
{
    Columns parameters;
    Column response;
};

Runs CompleteRuns(const Columns& parameters, const Column& response)
{
    Runs runs;
    runs.parameters.resize(parameters.size());
    for (std::size_t i = 0; i < response.size(); ++i) {
        const bool isComplete =
            std::isfinite(response[i]) &&
            std::all_of(parameters.begin(), parameters.end(),
                        [i](const Column& column) { return std::isfinite(column[i]); });
        if (!isComplete)
            continue;
        runs.response.push_back(response[i]);
        for (std::size_t k = 0; k < parameters.size(); ++k)
            runs.parameters[k].push_back(parameters[k][i]);
    }
    return runs;
}

std::size_t CountTerms(std::size_t parameters)
{
    return (parameters + 1) * (parameters + 2) / 2;
}

void CheckRuns(const QStringList& names, const Runs& runs)
{
    const std::size_t terms = CountTerms(runs.parameters.size());
    if (runs.response.size() < terms)
        throw HostError(SurfaceTexts::tr("a quadratic surface over these parameters needs at least "
                                         "%1 runs with a result; there are %2")
                            .arg(terms)
                            .arg(runs.response.size()));
    if (runs.response.size() * terms > MaximumNumbers)
        throw HostError(SurfaceTexts::tr("a quadratic surface over so many parameters and runs is "
                                         "too large; choose fewer parameters"));
    for (std::size_t k = 0; k < runs.parameters.size(); ++k) {
        constexpr std::size_t Needed = 3;
        std::set<double> values;
        for (double value : runs.parameters[k])
            if (values.insert(value).second && values.size() == Needed)
                break;
        if (values.size() < Needed)
            throw HostError(SurfaceTexts::tr("a quadratic surface needs at least three different "
                                             "values of \"%1\"")
                                .arg(names.value(int(k))));
    }
}

// The terms at a scaled point, in the order of ResponseSurface::Coefficients.
template<typename Row>
void FillTerms(const std::vector<double>& point, Row&& row)
{
    Eigen::Index term = 0;
    row(term++) = 1.0;
    for (double x : point)
        row(term++) = x;
    for (double x : point)
        row(term++) = x * x;
    for (std::size_t i = 0; i < point.size(); ++i)
        for (std::size_t j = i + 1; j < point.size(); ++j)
            row(term++) = point[i] * point[j];
}

Column ColumnOf(const Eigen::VectorXd& vector)
{
    return Column(vector.data(), vector.data() + vector.size());
}

} // namespace

ResponseSurface ResponseSurface::Fit(const QStringList& names, const Columns& parameters,
                                     const Column& response)
{
    const Runs runs = CompleteRuns(parameters, response);
    CheckRuns(names, runs);
    ResponseSurface surface;
    for (const Column& column : runs.parameters) {
        const auto ends = std::minmax_element(column.begin(), column.end());
        surface.m_ranges.push_back({*ends.first, *ends.second});
    }
    const auto rows = Eigen::Index(runs.response.size());
    const auto terms = Eigen::Index(CountTerms(parameters.size()));
    Eigen::MatrixXd matrix(rows, terms);
    std::vector<double> point(parameters.size());
    for (Eigen::Index i = 0; i < rows; ++i) {
        for (std::size_t k = 0; k < point.size(); ++k)
            point[k] = runs.parameters[k][std::size_t(i)];
        FillTerms(surface.ScaledPoint(point), matrix.row(i));
    }
    const Eigen::Map<const Eigen::VectorXd> target(runs.response.data(), rows);
    const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> factors(matrix);
    if (factors.rank() < terms)
        throw HostError(SurfaceTexts::tr("the runs do not determine a quadratic surface; some "
                                         "parameters change only together"));
    const Eigen::VectorXd coefficients = factors.solve(target);
    const Eigen::VectorXd residuals = target - matrix * coefficients;
    // The leverages are the squared rows of Q.
    const Eigen::MatrixXd orthogonal =
        factors.householderQ() * Eigen::MatrixXd::Identity(rows, terms);
    surface.Take(ColumnOf(coefficients));
    surface.Judge(runs.response, ColumnOf(residuals), ColumnOf(orthogonal.rowwise().squaredNorm()));
    return surface;
}

void ResponseSurface::Take(const std::vector<double>& coefficients)
{
    const auto count = std::ptrdiff_t(m_ranges.size());
    const auto linear = coefficients.begin() + 1;
    const auto squares = linear + count;
    const auto products = squares + count;
    m_coefficients.constant = coefficients.front();
    m_coefficients.linear.assign(linear, squares);
    m_coefficients.squares.assign(squares, products);
    m_coefficients.products.assign(products, coefficients.end());
}

void ResponseSurface::Judge(const Column& response, const Column& residuals,
                            const Column& leverages)
{
    m_runs = int(response.size());
    double mean = 0.0;
    for (double value : response)
        mean += value / m_runs;
    double total = 0.0;
    double left = 0.0;
    double predicted = 0.0;
    for (std::size_t i = 0; i < response.size(); ++i) {
        const double freedom = 1.0 - leverages[i];
        const double error = freedom > LeastFreedom ? residuals[i] / freedom
                                                    : std::numeric_limits<double>::quiet_NaN();
        total += (response[i] - mean) * (response[i] - mean);
        left += residuals[i] * residuals[i];
        predicted += error * error;
    }
    m_crossError = std::sqrt(predicted / m_runs);
    // A response that does not vary is explained by its constant.
    m_determination = total > 0.0 ? 1.0 - left / total : 1.0;
    m_prediction = total > 0.0 ? 1.0 - predicted / total : 1.0;
}

std::vector<double> ResponseSurface::ScaledPoint(const std::vector<double>& point) const
{
    std::vector<double> scaled(point.size());
    for (std::size_t i = 0; i < point.size(); ++i) {
        const DesignRange& range = m_ranges[i];
        scaled[i] = ((point[i] - range.least) - (range.greatest - point[i])) /
                    (range.greatest - range.least);
    }
    return scaled;
}

double ResponseSurface::ValueAt(const std::vector<double>& point) const
{
    const std::vector<double> scaled = ScaledPoint(point);
    double value = m_coefficients.constant;
    auto product = m_coefficients.products.begin();
    for (std::size_t i = 0; i < scaled.size(); ++i) {
        value += (m_coefficients.linear[i] + m_coefficients.squares[i] * scaled[i]) * scaled[i];
        for (std::size_t j = i + 1; j < scaled.size(); ++j)
            value += *product++ * scaled[i] * scaled[j];
    }
    return value;
}

std::vector<double> ResponseSurface::GradientAt(const std::vector<double>& point) const
{
    const std::vector<double> scaled = ScaledPoint(point);
    std::vector<double> gradient = m_coefficients.linear;
    auto product = m_coefficients.products.begin();
    for (std::size_t i = 0; i < scaled.size(); ++i) {
        gradient[i] += 2.0 * m_coefficients.squares[i] * scaled[i];
        for (std::size_t j = i + 1; j < scaled.size(); ++j, ++product) {
            gradient[i] += *product * scaled[j];
            gradient[j] += *product * scaled[i];
        }
    }
    for (std::size_t i = 0; i < scaled.size(); ++i)
        gradient[i] *= 2.0 / (m_ranges[i].greatest - m_ranges[i].least);
    return gradient;
}
