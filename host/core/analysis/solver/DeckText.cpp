#include "DeckText.h"

#include <array>
#include <charconv>

namespace {

constexpr int MostDigits = 17;

QByteArray Text(double value)
{
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value).ptr;
    return {buffer.data(), int(end - buffer.data())};
}

QByteArray Text(double value, int digits)
{
    std::array<char, 32> buffer;
    const auto end =
        std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::general, digits).ptr;
    return {buffer.data(), int(end - buffer.data())};
}

// 5 becomes 5. and 1e-05 becomes 1.E-5.
QByteArray AsReal(const QByteArray& text)
{
    const int exponent = text.indexOf('e');
    QByteArray real = text.left(exponent < 0 ? text.size() : exponent);
    if (!real.contains('.'))
        real += '.';
    if (exponent >= 0)
        real += 'E' + QByteArray::number(text.mid(exponent + 1).toInt());
    return real;
}

template<class Convert>
QByteArray Fitting(double value, int width, const Convert& convert)
{
    QByteArray text = convert(Text(value));
    for (int digits = MostDigits; text.size() > width && digits > 0; --digits)
        text = convert(Text(value, digits));
    return text;
}

} // namespace

QByteArray NumberInWidth(double value, int width)
{
    return Fitting(value, width, [](const QByteArray& text) { return text; });
}

QByteArray RealInWidth(double value, int width)
{
    return Fitting(value, width, AsReal);
}
