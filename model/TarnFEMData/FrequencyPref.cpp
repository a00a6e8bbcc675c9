#include "FrequencyPref.h"

double FrequencyPref::m_MinFreq = 1.0;
double FrequencyPref::m_MaxFreq = 1000000.0;
int FrequencyPref::m_NumFreq = 10;

FrequencyPref* FrequencyPref::GetInstance()
{
    static auto* const instance = new FrequencyPref;
    return instance;
}
