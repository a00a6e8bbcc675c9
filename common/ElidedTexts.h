#pragma once

class QWidget;

namespace tarn {

/// Makes every text of @p form that does not fit its place end with "…" and show in full in a tool
/// tip, at every font and size. This applies to the labels, buttons, check boxes, radio buttons,
/// group boxes and column headers that @p form has now. Where not even one letter fits before the
/// "…", the text is cut off, and has the tool tip all the same.
///
/// Only the drawing changes: the texts and sizes of the widgets stay as they are, and so does a
/// tool tip that somebody else sets.
void ElideTexts(QWidget& form);

} // namespace tarn
