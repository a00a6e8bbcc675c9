#pragma once

#include <QString>

namespace tarn {

/// Shows an information box with one OK button and waits until it is closed. It has no parent, so
/// it appears in the middle of the screen. The host's event loop keeps running while the box is
/// open: afterwards, look up again whatever a slot of the host may have changed.
void ShowNotice(const QString& title, const QString& text);

} // namespace tarn
