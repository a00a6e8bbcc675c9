#pragma once

#include "Column.h"
#include "SampledDesigns.h"

#include <QStringList>

#include <vector>

/// A quadratic function of parameters that fits a response with the least squares.
class ResponseSurface
{
public:
    /// The coefficients in parameters that run from -1 to 1 over their range.
    struct Coefficients
    {
        double constant = 0.0;
        std::vector<double> linear;
        std::vector<double> squares;
        /// Of the products of two parameters: (0, 1), (0, 2), ... (1, 2), ...
        std::vector<double> products;
    };

    /// Fits the @p response to the columns of the parameters, over the runs that have all values.
    /// @p names are those of the parameters, for messages. @throws HostError if the runs do not
    /// determine the surface, or if there are too many terms and runs to fit
    static ResponseSurface Fit(const QStringList& names, const Columns& parameters,
                               const Column& response);

    /// The range of each parameter in the runs.
    const DesignRanges& Ranges() const { return m_ranges; }
    const Coefficients& Scaled() const { return m_coefficients; }

    /// The value at a point of parameters.
    double ValueAt(const std::vector<double>& point) const;
    /// Its derivatives with respect to the parameters.
    std::vector<double> GradientAt(const std::vector<double>& point) const;

    int RunCount() const { return m_runs; }
    /// The share of the variance of the response that the surface explains, at most 1.
    double Determination() const { return m_determination; }
    /// The same for runs that the fit has not seen: each run is predicted by the fit to all others
    /// (Allen 1974, Technometrics 16). NaN if some run alone determines a term.
    double Prediction() const { return m_prediction; }
    /// The root of the mean squared error of these predictions, in the unit of the response.
    double CrossError() const { return m_crossError; }

private:
    std::vector<double> ScaledPoint(const std::vector<double>& point) const;
    void Take(const std::vector<double>& coefficients);
    void Judge(const Column& response, const Column& residuals, const Column& leverages);

    DesignRanges m_ranges;
    Coefficients m_coefficients;
    int m_runs = 0;
    double m_determination = 0.0;
    double m_prediction = 0.0;
    double m_crossError = 0.0;
};
