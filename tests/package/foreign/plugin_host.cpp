// A program that does not know the library: loads the plug-in named by its argument, lets it show
// dialogs, unloads it and goes on.
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <dlfcn.h>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    void* const plugin = argc > 1 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (plugin == nullptr) {
        std::fprintf(stderr, "%s\n", argc > 1 ? dlerror() : "no plug-in given");
        return 1;
    }
    reinterpret_cast<void (*)()>(dlsym(plugin, "ShowDialogs"))();
    dlclose(plugin);

    QDialog dialog;
    QTimer::singleShot(0, &dialog, &QDialog::reject);
    return dialog.exec();
}
