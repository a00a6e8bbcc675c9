#include "HostApplication.h"

#include "KernelMessages.h"
#include "MessageLevel.h"
#include "TarnGUICommonVersion.h"

#include <QFontDatabase>
#include <QIcon>
#include <QTextCodec>
#include <Standard_ConstructionError.hxx>
#include <Standard_Failure.hxx>
#include <Standard_Type.hxx>

#include <clocale>
#include <exception>
#include <new>

namespace {

void PostFailure(const QString& reason)
{
    PostMessageToChannel(
        ErrorLevel,
        HostApplication::tr("%1. The operation was cancelled; you can continue working.")
            .arg(reason));
}

// The dialogs request a font family that this system does not have.
void ProvideDialogFont()
{
    const QString family = QStringLiteral("微软雅黑");
    if (QFontDatabase().hasFamily(family))
        return;
    QFont::insertSubstitutions(family, {QStringLiteral("Noto Sans CJK SC"),
                                        QStringLiteral("Source Han Sans SC"),
                                        QStringLiteral("WenQuanYi Micro Hei")});
}

} // namespace

QString ConstructionErrorText::s_text;

HostApplication::HostApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{
    // Only now: the base class has just set the user's locale.
    std::setlocale(LC_NUMERIC, "C");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    ProvideDialogFont();
    RouteKernelMessages();

    setApplicationName(QStringLiteral("tarnhost"));
    setApplicationVersion(QStringLiteral(TarnGUICommon_VERSION));
    setWindowIcon(QIcon(QStringLiteral(":/images/TopTitle.png")));
}

HostApplication::~HostApplication() = default;

bool HostApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const Standard_Failure& failure) {
        const bool hasText = !ConstructionErrorText::s_text.isEmpty() &&
                             failure.IsKind(STANDARD_TYPE(Standard_ConstructionError));
        if (hasText)
            PostMessageToChannel(WarningLevel, ConstructionErrorText::s_text);
        else
            PostFailure(tr("The geometry kernel failed: %1 (%2)")
                            .arg(QString::fromLocal8Bit(failure.GetMessageString()),
                                 QString::fromLatin1(failure.DynamicType()->Name())));
    } catch (const std::bad_alloc&) {
        PostFailure(tr("The program ran out of memory"));
    } catch (const std::exception& exception) {
        PostFailure(tr("An unexpected error: %1").arg(QString::fromLocal8Bit(exception.what())));
    } catch (...) {
        PostFailure(tr("An unknown error occurred"));
    }
    // The event counts as handled, so that it is not passed on to the parent.
    return true;
}
