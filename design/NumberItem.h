#pragma once

#include <QTableWidgetItem>

/// A table item that holds a number and formats it with tarn::NumberText() on demand, for tables
/// too large to store a text per cell. Otherwise it behaves like an ordinary item with that text:
/// editing, comparing, cloning and streaming work in the same way, and an edited text is kept
/// unchanged.
///
/// Copy it with clone(): slicing it to QTableWidgetItem loses the text.
class NumberItem final : public QTableWidgetItem
{
public:
    explicit NumberItem(double value);

    QTableWidgetItem* clone() const override;
    QVariant data(int role) const override;
    void setData(int role, const QVariant& value) override;
    void read(QDataStream& in) override;
    void write(QDataStream& out) const override;

private:
    bool m_bNumber = true; // False once a text has been set.
    double m_dValue;
};
