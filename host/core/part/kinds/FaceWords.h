#pragma once

#include <QString>

// What kinds call the faces that they make. Files contain these words.

namespace FaceWords {

inline const QLatin1String Side = QLatin1String("side");
inline const QLatin1String Bottom = QLatin1String("bottom");
inline const QLatin1String Top = QLatin1String("top");
inline const QLatin1String Start = QLatin1String("start");
inline const QLatin1String End = QLatin1String("end");

/// Of one of several sides; @p number is from 1.
inline QString SideNumber(int number)
{
    return Side + QString::number(number);
}

} // namespace FaceWords
