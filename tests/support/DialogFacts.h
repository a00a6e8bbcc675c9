#pragma once

#include <QDialog>
#include <QMap>
#include <QMetaObject>
#include <QRect>
#include <QStringList>
#include <QTranslator>

/// The text of a widget, or its title.
QString ShownText(const QWidget& widget);

/// Columns for the widgets of a form, a row each, named after the object: type, parent, geometry,
/// text (a group box's title), enabled, checked. An empty geometry leaves the place to a layout.
///
///     AddFormColumns();
///     QTest::newRow("okButton") << "QPushButton" << "Dialog" << QRect() << "OK" << true << false;
void AddFormColumns();

/// Compares the widget of the current row.
void CompareFormRow(const QWidget& dialog);

/// The object names below @p dialog, sorted, without those that the toolkit gives.
QStringList FormWidgets(const QWidget& dialog);

/// Compares what a form gives the dialog itself. Beyond that the window must be as the toolkit
/// makes it: flags, modality, font and deletion are the host's.
void CompareWindow(const QDialog& dialog, const QString& name, const QString& title,
                   const QSize& size);

/// The signals and slots that a class adds to its base, in order, such as "public slot Run(int)".
QStringList OwnMethods(const QMetaObject& meta);

/// Notes every text that is looked up for translation while it lives; nothing is translated.
class TextRecorder : public QTranslator
{
public:
    TextRecorder();
    ~TextRecorder() override;

    /// The texts looked up in @p context, each once, sorted.
    QStringList TextsOf(const char* context) const;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* disambiguation,
                      int n) const override;

private:
    mutable QMap<QByteArray, QStringList> m_texts;
};
