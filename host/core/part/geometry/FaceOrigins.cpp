#include "FaceOrigins.h"

#include <QDataStream>

static QDataStream& operator<<(QDataStream& out, const FaceOrigin& origin)
{
    return out << origin.input << origin.number;
}

static QDataStream& operator>>(QDataStream& in, FaceOrigin& origin)
{
    return in >> origin.input >> origin.number;
}

void FaceOrigins::Append(const std::vector<FaceOrigin>& origins)
{
    for (const FaceOrigin& origin : origins)
        m_origins.append(origin);
    m_ends.append(m_origins.size());
}

int FaceOrigins::AddWord(const QString& word)
{
    m_words.append(word);
    return m_words.size() - 1;
}

qint64 FaceOrigins::Size() const
{
    constexpr qint64 BytesPerWord = 64;
    return qint64(m_ends.size()) * qint64(sizeof(int)) +
           qint64(m_origins.size()) * qint64(sizeof(FaceOrigin)) + m_words.size() * BytesPerWord;
}

QDataStream& operator<<(QDataStream& out, const FaceOrigins& origins)
{
    return out << origins.m_ends << origins.m_origins << origins.m_words;
}

QDataStream& operator>>(QDataStream& in, FaceOrigins& origins)
{
    return in >> origins.m_ends >> origins.m_origins >> origins.m_words;
}
