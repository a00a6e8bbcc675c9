#pragma once

#include <QTableWidgetItem>

/// A table item that holds a number and formats it (tarn::NumberText) only when it is asked, for
/// tables too large to keep a text per cell. In all else it behaves as an ordinary item with that
/// text: it is edited, compared, cloned and streamed alike, and keeps an edited text as it is.
///
/// Copies are made with clone(); a base object copied from it has no text.
class NumberItem final : public QTableWidgetItem
{
public:
    explicit NumberItem(double value);

    QTableWidgetItem* clone() const override;
    QVariant data(int role) const override;
    void setData(int role, const QVariant& value) override;
    void read(QDataStream& in) override;
    void write(QDataStream& out) const override;

    // Cells come by the hundred thousand: they share large blocks, which are released with the
    // last item.
    static void* operator new(std::size_t size);
    static void operator delete(void* place);

private:
    bool m_bNumber = true; // false once a text was set
    double m_dValue;
};
