#pragma once

#include <gp_XYZ.hxx>

class QLineEdit;

namespace tarn {

/// The point or direction typed into three fields. "nan", "inf" and "1e999" are accepted; other
/// non-numeric text counts as 0. The full stop is the decimal sign under every locale.
gp_XYZ Coordinates(const QLineEdit& x, const QLineEdit& y, const QLineEdit& z);

} // namespace tarn
