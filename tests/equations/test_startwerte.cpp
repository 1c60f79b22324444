#include "Texttabelle.h"

namespace {

/// What every equation starts with unless the table says otherwise.
const QString Gemeinsam =
    "MP_x=-0.5 MP_y=0 Br_x=4 Max_Iterationen=256 glg_Abbruch=1 wert_Abbruch=400 "
    "Koppl_x=0.2 Koppl_y=0.1 div_Factor=100 konv_Factor=100 it_Factor=1 "
    "rechen_VarianteDiv=8 rechen_VarianteKonv=3 color_Offset=0 zahl_farbtab=12 "
    "zahl_Matrix=11 g_ZwillingJa=0 g_JuliaJa=0 CJ_x=-1 CJ_y=0 g_Max_glg_Abbruch=9 "
    "g_PixConstX=0 g_PixConstY=0 g_VorschauAusJa=0 g_kPotenz=10 g_UnDo=0 wahlPalette48=1 "
    "g_oberesHalbbild=0 g_MittelkreuzJa=0 g_NullkreuzJa=0 g_GitterJa=0 g_GenauJa=0 "
    "g_RechnenJa=1 g_BildLoeschen=0 g_linienLoeschenJa=0 g_OrbitJa=0 g_OrbitDuennJa=0 "
    "g_maxOrbitIterat=256 g_OrbitMP=0 g_OrbitAbIterAn=0 g_zycmax=7 click2_Zoom=0.5 "
    "g_Gitterabstand=0 g_Genauigkeit=0.0001 g_Max_rgbFarben=582";

} // namespace

class TestStartwerte : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m = std::make_unique<M>();

  private Q_SLOTS:
    void jedeGleichung_data() { zeilenAus("equations/startwerte.txt"); }
    void jedeGleichung() {
        QFETCH(QStringList, spalten);
        const QString soll = Gemeinsam + ' ' + spalten[1]; // the last number of a field counts
        for (const QString& nummer : spalten[0].split(' ')) {
            for (const auto& [name, wert] : zahlen(Gemeinsam)) {
                setzeFeld(*m, Felder.at(name), 77.0);
            }
            m->wahl_Gleichung = nummer.toInt();
            m->Orbitmodus = 2;
            m->Initialisierung();
            QCOMPARE(nummer + abweichung(*m, soll), nummer);
            QCOMPARE(m->g_PalettenZahl, spalten[2]);
            QCOMPARE(m->Orbitmodus, 0);
        }
    }

    void fall_data() { zeilenAus("equations/startfaelle.txt"); }
    void fall() {
        QFETCH(QStringList, spalten);
        m->wahl_Gleichung = 1;
        m->resize(spalten[0].section('x', 0, 0).toInt(), spalten[0].section('x', 1).toInt());
        m->zahl_Matrix = 11;
        setze(*m, spalten[1]);
        m->Initialisierung();
        QCOMPARE(abweichung(*m, spalten[2]), QString());
    }

    // The first time all pictures and lists are emptied, later none.
    void ersterAufruf() {
        double* const reelle[] = {&m->ImageDoubles[1200][1199],
                                  &m->ImageViertelDoubles[300][299],
                                  &m->UnDo0Doubles[299],
                                  &m->UnDo1Doubles[0],
                                  &m->UnDo2Doubles[0],
                                  &m->UnDo3Doubles[0],
                                  &m->UnDo4Doubles[0],
                                  &m->OrbitX[258],
                                  &m->OrbitY[258]};
        qint32* const ganze[] = {
            &m->ImageIntegers[0][0],        &m->ImageGitterIntegers[1][0],
            &m->ImageViertelIntegers[0][5], &m->ImageViertelGitterIntegers[7][0],
            &m->UnDo0Integers[299],         &m->UnDo4Integers[0]};
        for (const int erstesMal : {0, 1}) {
            for (double* wert : reelle) {
                *wert = 1.0;
            }
            for (qint32* wert : ganze) {
                *wert = 1;
            }
            m->initIstdurchJa = 1 - erstesMal;
            m->g_halbesBild = ViertelRechtsOben;
            m->Initialisierung();
            for (const double* wert : reelle) {
                QCOMPARE(*wert, erstesMal == 1 ? 0.0 : 1.0);
            }
            for (const qint32* wert : ganze) {
                QCOMPARE(*wert, 1 - erstesMal);
            }
            QCOMPARE(m->g_halbesBild, erstesMal ? ViertelLinksOben : ViertelRechtsOben);
            QCOMPARE(m->initIstdurchJa, 1);
        }
    }
};

QTEST_MAIN(TestStartwerte)
#include "test_startwerte.moc"
