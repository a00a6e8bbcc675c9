#include "CoordinateInput.h"

#include <QLineEdit>

gp_XYZ tarn::Coordinates(const QLineEdit& x, const QLineEdit& y, const QLineEdit& z)
{
    return {x.text().toDouble(), y.text().toDouble(), z.text().toDouble()};
}
