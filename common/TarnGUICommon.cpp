#include "TarnGUICommon.h"

// Defined here, not in the header: the class exists for its exported symbols.
TarnGUICommon::TarnGUICommon() = default;
TarnGUICommon::~TarnGUICommon() = default;
TarnGUICommon& TarnGUICommon::operator=(const TarnGUICommon&) = default;
