#pragma once

class QDialog;
class QWidget;

/// Moves a dialog that is about to be shown to where it covers least of @p widget, within the
/// screen.
void PlaceBeside(QDialog& dialog, const QWidget& widget);
