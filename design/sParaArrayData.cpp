#include "sParaArrayData.h"

std::map<QString, sParaArrayData> g_mapParaArrays;
