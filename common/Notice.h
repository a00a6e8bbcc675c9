#pragma once

#include <QString>

namespace tarn {

/// Shows a notice and waits until it is closed: an information box with one OK button and without
/// parent, so that it stands in the middle of the screen. The host lives on behind the box; look up
/// again after it what a slot of the host may have changed.
void ShowNotice(const QString& title, const QString& text);

} // namespace tarn
