#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QStringList>
#include <QTranslator>

/// Records every text that is looked up for translation while it lives; translates nothing.
class TextRecorder : public QTranslator
{
public:
    TextRecorder() { QCoreApplication::installTranslator(this); }
    ~TextRecorder() override { QCoreApplication::removeTranslator(this); }

    /// The texts looked up in @p context, each once, sorted.
    QStringList TextsOf(const char* context) const
    {
        QStringList texts = m_texts.value(context);
        texts.removeDuplicates();
        texts.sort();
        return texts;
    }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        m_texts[context] << QString::fromUtf8(text);
        return QString();
    }

private:
    mutable QMap<QByteArray, QStringList> m_texts;
};
