#pragma once

#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureDialogs.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "TestCase.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <utility>
#include <vector>

// The dialogs of features as a user fills them in.

/// The texts typed into one dialog, by object name of the line edit.
using Typed = std::vector<std::pair<QString, QString>>;
Q_DECLARE_METATYPE(Typed)

inline void PressOK(const QDialog& dialog)
{
    const bool isArray = dialog.findChild<QWidget*>("pushButtonOK") != nullptr;
    Click(dialog, isArray ? "pushButtonOK" : "pushButton_OK");
}

inline void Fill(const QDialog& dialog, const Typed& typed)
{
    for (const auto& [edit, text] : typed)
        Find<QLineEdit>(dialog, edit.toLatin1().constData()).setText(text);
}

inline void FillAndPressOK(ModalDriver& user, const Typed& typed)
{
    user.Then([typed](QDialog& dialog) {
        Fill(dialog, typed);
        PressOK(dialog);
    });
}

inline QString Shown(const QDialog& dialog, const char* edit)
{
    return Find<QLineEdit>(dialog, edit).text();
}

struct Asked
{
    EmptyDesignStores stores;
    QWidget window;
    FeatureDialogs dialogs{&window};
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};
