#include "UI_Hauptfenster.h"

#include <memory>

/// Creates the application and one window and runs until the window is closed. Returns 0.
int qMain(int argc, char** argv) {
    const auto app = std::make_unique<QApplication>(argc, argv);
    const auto fenster = std::make_unique<UI>();
    fenster->show();
    QApplication::exec();
    QCoreApplication::exit(0);
    return 0;
}

int main(int argc, char** argv) { return qMain(argc, argv); }
