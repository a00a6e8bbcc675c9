#pragma once

#include <gp_XYZ.hxx>

class QLineEdit;

namespace tarn {

/// The numbers typed into three fields, of a point or of a direction; text that is no number
/// counts as 0. The full stop is the decimal sign under every locale.
gp_XYZ Coordinates(const QLineEdit& x, const QLineEdit& y, const QLineEdit& z);

} // namespace tarn
