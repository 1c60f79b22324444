#include "window/Sprache.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <string_view>

namespace {

class Qttexte : public QTranslator {
  public:
    using QTranslator::QTranslator;

    [[nodiscard]] QString translate(const char* bereich, const char* quelle, const char* zusatz,
                                    int anzahl) const override {
        const std::string_view text(quelle);
        // The direction of the window is a text of Qt as well.
        return text == "OK" || text == "&OK" || text == "QT_LAYOUT_DIRECTION"
                   ? QString()
                   : QTranslator::translate(bereich, quelle, zusatz, anzahl);
    }
};

} // namespace

void qtTexteUebersetzen(QCoreApplication& app, const QLocale& sprache) {
    auto* texte = new Qttexte(&app);
    if (texte->load(sprache, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(texte);
    }
}
