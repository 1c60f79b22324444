// Fuzz target: every input is a file of picture data that the window loads, followed by one small
// painted picture. Built by the preset "fuzz" only; skripte/fuzz.sh starts it.
//
// The window is the same for all inputs, and so are the picture buffers, as for a user who loads
// one file after the other; what a single input changes beyond that is taken back before the next
// one.

#include "files/Bilddaten.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>

namespace {

// Every pixel costs the sanitizers much. Only the fuzzer's own numbers are small: the code under
// test keeps its bounds.
constexpr QSize Bild(20 + Mandelbrot::Streifenbreite, 12);
constexpr qint32 FestesMass = 40; ///< most pixels of a fixed width or height
constexpr qint32 MeisteIterationen = 20;

/// The program without an event loop: nothing is shown, and what is queued is thrown away.
class Programm {
  public:
    Programm() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        app = std::make_unique<QApplication>(anzahl, worte.data());
        fenster = std::make_unique<UI>();
        fenster->setAttribute(Qt::WA_DontShowOnScreen);
        fenster->show();
    }

    void laden(const QByteArray& bytes) {
        Mandelbrot& m = *fenster->Menge;
        zuruecksetzen();
        QBuffer quelle;
        quelle.setData(bytes);
        quelle.open(QIODevice::ReadOnly);
        bilddatenLesen(quelle, *fenster);
        fenster->UI_Iterationen->setValue(fenster->UI_Iterationen->value() % MeisteIterationen);
        m.g_PixConstX %= FestesMass;
        m.g_PixConstY %= FestesMass;
        fenster->NeueBerechnungSlot();
        malen();
        fenster->SetNewTitle();
        QCoreApplication::removePostedEvents(nullptr);
    }

  private:
    void zuruecksetzen() {
        Mandelbrot& m = *fenster->Menge;
        m.Initialisierung();
        m.BildSicherungLoeschen();
        m.letzterOrbit.reset();
        for (QPainterPath* weg :
             {&m.polygonPathM1, &m.polygonPathM2, &m.polygonPathM3, &m.polygonPathM4}) {
            weg->clear();
        }
        m.resize(Bild);
        fenster->WerteAktualisierenSlot();
    }

    void malen() {
        QPainter maler(&leinwand);
        fenster->Menge->Berechnung(&maler);
    }

    int anzahl = 1;
    std::array<char, 5> name{"fuzz"};
    std::array<char*, 2> worte{name.data(), nullptr};
    std::unique_ptr<QApplication> app;
    std::unique_ptr<UI> fenster;
    QImage leinwand{Bild, QImage::Format_ARGB32_Premultiplied};
};

} // namespace

// The font library keeps what it read, and the fuzzer would blame the input that asked first.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    static Programm programm;
    programm.laden(QByteArray(reinterpret_cast<const char*>(daten), qsizetype(laenge)));
    return 0;
}
