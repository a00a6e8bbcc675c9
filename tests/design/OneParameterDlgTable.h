#pragma once

#include "DialogTest.h"
#include "EmptyDesignStores.h"
#include "OneParameterDlg.h"
#include "Tables.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>

/// Shared by the tests of the sampling dialog: its boxes, its fields and its table.

inline const ShownBox BadInput = ShownBox::Notice("Error", "Check input data!");
inline const ShownBox NoGauss = ShownBox::Notice("Error", "Not implement yet");

using namespace SampleSpacing;

inline const char* const TypeButtons[] = {"radioButton_Linear", "radioButton_Log", "radioButton_Ln",
                                          "radioButton_Gauss"};

inline QTableWidget& Table(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget");
}

inline QStringList Rows(const QWidget& dialog)
{
    return ColumnTexts(Table(dialog));
}

inline QStringList Fields(const QWidget& dialog)
{
    QStringList texts;
    for (const char* const name : {"lineEdit_Min", "lineEdit_Max", "lineEdit_Deta"})
        texts << Find<QLineEdit>(dialog, name).text();
    return texts;
}

inline QStringList CheckedTypes(const QWidget& dialog)
{
    QStringList texts;
    for (const char* const name : TypeButtons) {
        if (Find<QRadioButton>(dialog, name).isChecked())
            texts << Find<QRadioButton>(dialog, name).text();
    }
    return texts;
}

inline void SetFields(const QWidget& dialog, const QString& min, const QString& max,
                      const QString& step)
{
    Find<QLineEdit>(dialog, "lineEdit_Min").setText(min);
    Find<QLineEdit>(dialog, "lineEdit_Max").setText(max);
    Find<QLineEdit>(dialog, "lineEdit_Deta").setText(step);
}

inline void StoreRange(const QString& name, double min, double max, double step, int type = Linear)
{
    sParaArrayData& record = g_mapParaArrays[name];
    record.dMin = min;
    record.dMax = max;
    record.dDelta = step;
    record.nSampleType = type;
}
