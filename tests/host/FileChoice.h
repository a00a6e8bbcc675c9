#pragma once

#include "ModalDriver.h"
#include "TestCase.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

/// Answers the next file dialog with @p path, through its own field.
inline void ChooseFile(ModalDriver& user, const QString& path)
{
    user.Then([path](QDialog& dialog) {
        Find<QLineEdit>(dialog, "fileNameEdit").setText(path);
        auto& buttons = Find<QDialogButtonBox>(dialog, "buttonBox");
        const bool isOpen = buttons.button(QDialogButtonBox::Open) != nullptr;
        QTest::mouseClick(buttons.button(isOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save),
                          Qt::LeftButton);
    });
}
