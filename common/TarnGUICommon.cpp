#include "TarnGUICommon.h"

// Defined here and not defaulted in the header: the point of the class is its exported symbols.
TarnGUICommon::TarnGUICommon() = default;
TarnGUICommon::~TarnGUICommon() = default;
TarnGUICommon& TarnGUICommon::operator=(const TarnGUICommon&) = default;
