#pragma once

#include <QRect>
#include <QString>

class QHeaderView;
class QWidget;

namespace tarn {

/// A text and the visible part of the place where its widget draws it.
struct PlacedText
{
    QString text;
    QRect place; ///< In coordinates of the widget.
};

/// The text of a label, button, check box, radio button, group box or combo box, and its place. The
/// text is empty for any other widget, and for a label with rich text.
PlacedText TextIn(const QWidget& widget);

/// Whether @p placed, the text of @p widget, is wider or higher than its place.
bool IsCut(const QWidget& widget, const PlacedText& placed);

/// Whether the title of @p section of @p header is wider than the section.
bool IsCut(const QHeaderView& header, int section);

/// The style option with which @p widget draws itself.
template<class Option, class Widget>
Option OptionOf(const Widget& widget)
{
    struct Access : Widget
    {
        static auto Initialiser() { return &Access::initStyleOption; }
    };
    Option option;
    (widget.*Access::Initialiser())(&option);
    return option;
}

} // namespace tarn
