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
    QVector<QString> fields; ///< The first one is the name, which every record must have.
    /// Further fields, which are only written if they have a text. They follow those above.
    QVector<QString> optional = {};
};

enum class XmlReading
{
    Refused, ///< Not a complete file of this format.
    Partly,  ///< The file has more content, which writing the records would lose.
    Fully    ///< The file has nothing but the records.
};

/// Reads the records of a file's @p content. Calls @p take for each record with the texts of the
/// fields, which it may move away. @p take returns false to refuse the file.
XmlReading ReadRecords(const XmlFormat& format, const QByteArray& content,
                       const std::function<bool(std::vector<QString>& texts)>& take);

/// Writes a file into @p content. @p next fills in the texts of the next record and returns false
/// if there are no more records. Returns false if the file would be too large to be read again.
bool WriteRecords(const XmlFormat& format, QByteArray& content,
                  const std::function<bool(std::vector<QString>& texts)>& next);

/// The number with all its digits and a decimal point. ToNumber() returns exactly this number.
QString ToText(double number);

/// Reads a text of ToText(). Returns false if @p text is not a number.
bool ToNumber(const QString& text, double& number);

} // namespace tarn
