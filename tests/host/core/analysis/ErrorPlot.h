#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cmath>
#include <vector>

/// Errors against the theory over the size of the elements, as the text of an SVG file. The sizes
/// have a logarithmic scale.
class ErrorPlot
{
public:
    /// @p leastSize and @p greatestSize are in mm, @p leastError and @p greatestError even numbers
    /// in percent.
    ErrorPlot(double leastSize, double greatestSize, int leastError, int greatestError)
        : m_leastSize(leastSize)
        , m_greatestSize(greatestSize)
        , m_leastError(leastError)
        , m_greatestError(greatestError)
    {
        for (int error = leastError; error <= greatestError; error += 2) {
            const QString color(error == 0 ? "#404040" : "#d8d8d8");
            AddLine(leastSize, error, greatestSize, error, color);
            AddText(Left - 8, Y(error) + 4, "end", QString("%1 %").arg(error));
        }
        AddText((Left + Right) / 2, Bottom + 40, "middle", "size of the elements, mm");
        AddText(Left - 50, Top - 16, "start", "error against the theory");
    }

    void AddSize(double size)
    {
        AddLine(size, m_leastError, size, m_greatestError, "#d8d8d8");
        AddText(X(size), Bottom + 18, "middle", QString::number(size));
    }

    /// An error in percent for each of the sizes.
    void AddCurve(const QString& name, const std::vector<double>& sizes,
                  const std::vector<double>& errors)
    {
        const char* const colors[] = {"#0072b2", "#d55e00", "#009e73", "#cc79a7"};
        const QString color = colors[m_curves % 4];
        QString points;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            points += QString("%1,%2 ").arg(X(sizes[i])).arg(Y(errors[i]));
            m_body += QString("<circle cx=\"%1\" cy=\"%2\" r=\"4\" fill=\"%3\"/>\n")
                          .arg(X(sizes[i]))
                          .arg(Y(errors[i]))
                          .arg(color);
        }
        m_body += QString("<polyline points=\"%1\" fill=\"none\" stroke=\"%2\" "
                          "stroke-width=\"2\"/>\n")
                      .arg(points.trimmed(), color);
        const double y = Top + 20 + 20 * m_curves++;
        m_body += QString("<rect x=\"%1\" y=\"%2\" width=\"16\" height=\"4\" fill=\"%3\"/>\n")
                      .arg(Left + 16)
                      .arg(y - 6)
                      .arg(color);
        AddText(Left + 40, y, "start", name);
    }

    QByteArray Svg() const
    {
        return QString("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\" "
                       "width=\"%1\" height=\"%2\" font-family=\"sans-serif\" font-size=\"13\">\n"
                       "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n%3</svg>\n")
            .arg(int(Right) + 30)
            .arg(int(Bottom) + 60)
            .arg(m_body)
            .toUtf8();
    }

private:
    static constexpr double Left = 80.0;
    static constexpr double Right = 720.0;
    static constexpr double Top = 50.0;
    static constexpr double Bottom = 400.0;

    double X(double size) const
    {
        return Left + (Right - Left) * std::log(size / m_leastSize) /
                          std::log(m_greatestSize / m_leastSize);
    }

    double Y(double error) const
    {
        return Bottom - (Bottom - Top) * (error - m_leastError) / (m_greatestError - m_leastError);
    }

    void AddLine(double size1, double error1, double size2, double error2, const QString& color)
    {
        m_body += QString("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\"/>\n")
                      .arg(X(size1))
                      .arg(Y(error1))
                      .arg(X(size2))
                      .arg(Y(error2))
                      .arg(color);
    }

    void AddText(double x, double y, const char* anchor, const QString& text)
    {
        m_body += QString("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n")
                      .arg(x)
                      .arg(y)
                      .arg(anchor, text);
    }

    double m_leastSize;
    double m_greatestSize;
    int m_leastError;
    int m_greatestError;
    int m_curves = 0;
    QString m_body;
};
