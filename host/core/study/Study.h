#pragma once

#include "FullFactorial.h"
#include "ParameterMap.h"

#include <QString>
#include <QStringList>

class Project;

/// The runs of a project: every combination of the samples of the ticked parameters, in the order
/// of the DOE dialog.
class Study
{
public:
    /// Fills the parameter store with the parameters of the project. @throws HostError if a sample
    /// list has a problem or there are more runs than FullFactorial allows
    explicit Study(const Project& project);

    int RunCount() const { return int(m_design.RunCount()); }

    /// Puts @p run, counted from 1, into the parameter store: its values, the project's own values
    /// of all other parameters, and the values of their expressions. Returns why that failed, in
    /// one line, or an empty text.
    QString Choose(int run) const;

private:
    QStringList m_names; // Of the ticked parameters, one for each list of the design.
    FullFactorial m_design;
    ParameterMap m_parameters;
};
