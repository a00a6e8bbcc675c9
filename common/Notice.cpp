#include "Notice.h"

#include <QMessageBox>

void tarn::ShowNotice(const QString& title, const QString& text)
{
    QMessageBox::information(nullptr, title, text, QMessageBox::Ok);
}
