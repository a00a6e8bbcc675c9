#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>
#include <vector>

namespace tarn {

/// A kind of XML file: a root element with version and unit system, and below it one element for
/// each record, whose attributes are the record's fields.
struct XmlFormat
{
    QString root;
    QString units;
    QString record;
    QVector<QString> fields; ///< The first is the name, which every record must have.
};

enum class XmlReading
{
    Refused, ///< Not a whole file of this format.
    Partly,  ///< Read, but there was more in it, which writing the records again would lose.
    Fully    ///< Read, and nothing else was in it.
};

/// Reads the records of a file's @p content. @p take is called for each with the texts of the
/// fields, which it may move away, and says false to refuse the file.
XmlReading ReadRecords(const XmlFormat& format, const QByteArray& content,
                       const std::function<bool(std::vector<QString>& texts)>& take);

/// Writes a file into @p content. @p next fills in the texts of the next record and says false when
/// there is none any more. False when the file would be too large to be read again.
bool WriteRecords(const XmlFormat& format, QByteArray& content,
                  const std::function<bool(std::vector<QString>& texts)>& next);

/// A number with all its digits and the full stop; ToNumber() gives exactly it back.
QString ToText(double number);

/// False when @p text is no number.
bool ToNumber(const QString& text, double& number);

} // namespace tarn
