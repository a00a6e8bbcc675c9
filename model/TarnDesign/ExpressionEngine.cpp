#include "ExpressionEngine.h"

#include <limits>

double ExpressionEngine::CalculateExpress(const std::string&, std::map<std::string, double>&)
{
    return std::numeric_limits<double>::quiet_NaN();
}

QString ExpressionEngine::LastError()
{
    return QString();
}
