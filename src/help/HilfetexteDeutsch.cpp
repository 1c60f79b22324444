#include "help/Hilfetexte.h"

#include <QtGlobal>

namespace {

constexpr Hilfetext KomplexeZahlen{QT_TRANSLATE_NOOP("UI", "Komplexe Zahlen"),
                                   QT_TRANSLATE_NOOP("UI", R"html(<b>Zahlen mit zwei Teilen</b><br>
Eine gewöhnliche Zahl ist ein Punkt auf einer Geraden. Eine komplexe Zahl Z ist ein Punkt in einer
Ebene: x zählt nach rechts (Realteil), y nach oben (Imaginärteil). Geschrieben wird sie mit dem
Zeichen i, dessen Quadrat -1 ist:<br>
&nbsp;&nbsp;&nbsp;<b>Z = x + i*y</b><br>
&nbsp;&nbsp;&nbsp;i*i = -1<br>
Z = 3 + 2i liegt also drei Schritte rechts vom Nullpunkt und zwei Schritte darüber.<br>
<br>
<b>Rechnen</b><br>
Beim Addieren werden beide Teile für sich addiert; das verschiebt den Punkt. Beim Multiplizieren
wird wie gewohnt jedes Glied mit jedem malgenommen und i*i durch -1 ersetzt:<br>
&nbsp;&nbsp;&nbsp;(1 + 2i) + (3 + i) = 4 + 3i<br>
&nbsp;&nbsp;&nbsp;(1 + 2i) * (3 + i) = 3 + i + 6i + 2*i*i = 1 + 7i<br>
Für das Quadrat und für den Abstand vom Nullpunkt heißt das:<br>
&nbsp;&nbsp;&nbsp;<b>Z*Z = (x*x - y*y) + i*(2*x*y)</b><br>
&nbsp;&nbsp;&nbsp;|Z| = sqrt(x*x + y*y) &nbsp;&nbsp;(sqrt ist die Quadratwurzel)<br>
Anschaulich: Das Quadrat verdoppelt den Winkel (den die Linie vom Nullpunkt zu Z mit der waagrechten
Achse bildet) und quadriert den Abstand. Multiplizieren dreht und streckt, das Addieren von C
verschiebt. Erst beides im Wechsel, immer wieder, gibt die Wirbel in den Bildern.<br>
<br>
<b>Die Konjugierte ZS</b><br>
ZS ist das Spiegelbild von Z an der waagrechten Achse; nur das Vorzeichen von y ändert sich:<br>
&nbsp;&nbsp;&nbsp;<b>ZS = x - i*y</b><br>
&nbsp;&nbsp;&nbsp;Z*ZS = x*x + y*y<br>
Das Produkt Z*ZS hat keinen Imaginärteil und ist nie negativ: Es ist das Quadrat des Abstands. In
den Namen der Gleichungen steht Zq für Z*Z und Zm für Z*ZS.<br>
<br>
<b>C, das Raster des Bildes</b><br>
Das Bild ist ein Ausschnitt dieser Ebene. Bei Gleichungen mit ungerader Nummer (am Anfang ist es die
1), außer denen nach Newton, steht jeder Bildpunkt für eine Zahl C; bei den anderen beginnt dort Z,
und C ist fest. „Mittelpkt. X“ und „Mittelpkt. Y“ nennen die Bildmitte, das Feld darunter die
Breite. Von einem Bildpunkt zum nächsten wächst x nach rechts um einen Schritt, und nach unten fällt
y um denselben Schritt:<br>
&nbsp;&nbsp;&nbsp;Schritt = Breite / Zahl der Bildspalten<br>
Je kleiner die Breite, desto stärker die Vergrößerung.)html")};

constexpr Hilfetext Fraktale{
    QT_TRANSLATE_NOOP("UI", "Die Mandelbrotmenge als Beispiel"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Eine Rechenregel, immer wieder</b><br>
Ein Fraktal entsteht aus einer einfachen Regel, deren Ergebnis stets wieder eingesetzt wird. Die
Regel der Mandelbrotmenge lautet:<br>
&nbsp;&nbsp;&nbsp;<b>Z = Z*Z + C</b>, am Anfang Z = 0<br>
Jeder Bildpunkt ist eine komplexe Zahl C, ein Punkt der Ebene (mehr unter „About Komplexe Zahlen“).
Für jeden wird die Regel wiederholt (iteriert). Drei Beispiele:<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;1: &nbsp;0, 1, 2, 5, 26, ... &nbsp;wächst über alle Grenzen<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;-1: &nbsp;0, -1, 0, -1, ... &nbsp;pendelt für immer<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;-0.5: &nbsp;0, -0.5, -0.25, -0.4375, ... &nbsp;kommt bei -0.366 zur
Ruhe<br>
Bleibt Z für immer in der Nähe, gehört C zur Mandelbrotmenge (konvergent). Läuft Z davon, liegt C
außerhalb (divergent), und die Farbe zeigt, wie schnell. Am Rand entscheidet ein Hauch über das eine
oder das andere; darum findet sich dort in jeder Vergrößerung Neues.<br>
<br>
<b>Das Startbild</b> reicht von C(-2.5, 2) links oben bis C(1.5, -2) rechts unten, wenn es
quadratisch ist. Ist es breiter als hoch, fehlt oben und unten gleich viel. Es füllt zuerst nur ein
Viertel; im Menü „Groesse/Size“ macht „Aktives zum vollem Bild/FullPicture“ es groß. Ein Klick
vergrößert um den angeklickten Punkt, mit Zoom&nbsp;=&nbsp;0.5 auf die halbe Breite.<br>
<br>
<b>Fixpunkte und Zyklen</b><br>
Im herzförmigen Hauptkörper strebt Z zu einem Fixpunkt. In der Kreisscheibe links davon, um
C&nbsp;=&nbsp;-1, wechselt Z zwischen zwei Werten, in den kleineren Knospen zwischen drei, vier oder
mehr. Der Orbit-Modus zeichnet solche Zyklen. NrAbbruch 5 färbt nach ihrer Länge, NrAbbruch 4
danach, wie genau sie sich schließen.<br>
<br>
<b>Warum ZahlAbbr&nbsp;=&nbsp;400?</b><br>
Gerechnet werden höchstens maxIter - 1 Schritte, am Anfang 255. Vorher bricht die Rechnung ab,
sobald<br>
&nbsp;&nbsp;&nbsp;rq = x*x + y*y &nbsp;(mit Z = x + i*y)<br>
ZahlAbbr erreicht, eine Zahl im Steuerfeld. Bei dieser Gleichung würde 4 genügen: Wer weiter als 2
vom Nullpunkt entfernt ist, kehrt nicht zurück. Der Vorgabewert 400, also Abstand 20, kostet nur
wenige Schritte mehr. Dafür fällt C neben Z*Z kaum noch ins Gewicht, und die aus rq gebildeten
Farben verlaufen weicher.<br>
<br>
<b>Juliamengen</b><br>
Hält man C fest und beginnt mit Z an jedem Bildpunkt, entsteht eine Juliamenge, zu jedem C eine
andere. So kommt man hin:<br>
&nbsp;&nbsp;&nbsp;1. In die Mandelbrotmenge klicken, nahe am Rand. Das Bild wird vergrößert, und der
Punkt steht nun bei „C-Julia X“ und „C-Julia Y“.<br>
&nbsp;&nbsp;&nbsp;2. Die nächste gerade Gleichung wählen, „2: Juliamenge Z=Z*Z +C(const)“. Eine
kleine Vorschau erscheint.<br>
&nbsp;&nbsp;&nbsp;3. „CenterX =0“ und „CenterY =0“ drücken, dann „BreiteX *2“, bis die Breite 4
ist.<br>
&nbsp;&nbsp;&nbsp;4. „Start!“ drücken. Bei Mittelpunkt 0 und Breite 4 ist die Juliamenge fast immer
ganz zu sehen.<br>
Zurück führen „1: Mandelbrotmenge Z=Z*Z+C“ und „Reset zum Startbild der Gleichung“ (Menü
„Datei/File“).)html")};

constexpr Hilfetext SpezialFraktale{
    QT_TRANSLATE_NOOP("UI", "Was ist hier anders?"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Rückkopplung untersuchen</b><br>
Wirbelwerk will nicht nur schöne Bilder zeigen, sondern zeigen, woher sie kommen. Überall, wo ein
Ergebnis wieder zur Ursache wird, beim Wetter, in Regelkreisen, beim Pfeifen von Mikrofon und
Lautsprecher, liegt Rückkopplung vor. Hier ist sie auf eine Zeile verkürzt:<br>
&nbsp;&nbsp;&nbsp;<b>neues Z = f(altes Z, C)</b><br>
98 solche Gleichungen stehen zur Wahl. Die Einstellungen bleiben beim Wechsel der Gleichung
erhalten, bis auf wenige Ausnahmen (siehe „About Gleichungen“); so wird sichtbar, was an einem Bild
von der Gleichung kommt und was vom Rest.<br>
<br>
<b>Gleichungen mit der Konjugierten ZS = x - i*y</b><br>
Wird ein Z durch sein Spiegelbild ZS ersetzt, entstehen ganz andere Formen:<br>
&nbsp;&nbsp;&nbsp;3: Z = Z*ZS + C &nbsp;(Auge)<br>
&nbsp;&nbsp;&nbsp;107: Z = Z^ZS + C &nbsp;(verwandt mit der Spinne, 7)<br>
&nbsp;&nbsp;&nbsp;911: Z = (Z+C)/(1+C*Z*ZS) &nbsp;(Dreipol-Auge)<br>
<br>
<b>Das Zwillingsverfahren</b><br>
Neben Z läuft ein zweiter Wert W nach derselben Gleichung, der Zwilling. Jeder verändert die
Konstante des anderen, mit der Stärke koppX und koppY. Schon kleine Werte wie 0.1 können ein Bild
verbiegen oder aufbrechen. Elf Kopplungen stehen im Menü „Zwillinge/Twins“.<br>
<br>
<b>Kreuze und Raster</b><br>
Mittelkreuz, Nullkreuz und Raster („Linien/Lines“) machen das Bild zur Landkarte. Der Abstand der
Rasterlinien ist der Wert von Zoom; mit Zoom&nbsp;=&nbsp;0.5 liegt alle 0.5 eine Linie, gezählt ab
dem Nullpunkt oder ab der Bildmitte.<br>
<br>
<b>Der Orbit-Modus</b><br>
Er zeigt, was in einem einzelnen Bildpunkt geschieht: den Weg von Z, Schritt für Schritt, als
Linienzug über dem Bild und auf Wunsch als Zahlenliste.<br>
<br>
<b>Farben ohne neue Rechnung</b><br>
Zu jedem Bildpunkt bleiben der letzte Wert rq und der Schrittzähler n gespeichert. Darum lassen
sich Paletten, Varianten und Faktoren wechseln, ohne neu zu rechnen; die 4x4-Matrix stellt sechzehn
Farbtafeln nebeneinander.)html")};

constexpr Hilfetext Gleichungen{QT_TRANSLATE_NOOP("UI", "Zur Auswahl der Gleichung"),
                                QT_TRANSLATE_NOOP("UI", R"html(<b>Wählen, dann „Start!“</b><br>
Eine Wahl im Menü „Gleichung/Equation“ zeichnet nur eine kleine Vorschau in eine Ecke; Klicks ins
Bild gelten so lange nicht. Erst „Start!“ rechnet das Bild. Oder: die Nummer oben im Steuerfeld
eintippen und „Start!“ drücken. Das erste Bild nach dem Programmstart ist nur ein Viertel; im Menü
„Groesse/Size“ macht „Aktives zum vollem Bild/FullPicture“ es groß.<br>
Die anderen Einstellungen bleiben, auch Ausschnitt und Farben; so lassen sich Gleichungen
vergleichen. Ausnahmen: 8 setzt C-Julia auf -1, die Newton-Gleichungen ..09 und ..10 setzen ein
koppX von 0 auf 1. Ist nichts Rechtes zu sehen, hilft im Menü „Datei/File“ der Befehl „Reset zum
Startbild der Gleichung“.<br>
<br>
<b>Die Potenz K</b> gilt für Gleichungen mit K im Namen, Standard ist 10. Die K-Befehle am Ende des
Menüs zeichnen nichts, bis „Start!“ gedrückt wird. Heißt es „K ungerade“, zuerst „Potenzzahl K=7“
wählen: Mit K&nbsp;=&nbsp;10 vom Programmstart her fehlt der Gleichung die Potenz, aus 603 wird
Z=Z+C. „Potenzzahl K=Zoom“ setzt den ganzzahligen Teil von Zoom ein. Ein K ungleich 10 steht im
Titel.<br>
<br>
<b>1 bis 10: in Komponenten</b>, mit den reellen Zahlen x und y gerechnet
<table cellspacing="0" cellpadding="1">
<tr><td>1, 2:&nbsp;</td><td>Z=Z*Z+C &nbsp;(Mandelbrot)</td>
<td>&nbsp;&nbsp;&nbsp;7:&nbsp;</td><td>Z=Z^ZS+C &nbsp;(Spinne) &nbsp;[1]</td></tr>
<tr><td>3, 4:</td><td>Z=Z*ZS+C &nbsp;(Auge)</td>
<td>&nbsp;&nbsp;&nbsp;8:</td><td>Z=Z^ZS-1 &nbsp;(Schädel) &nbsp;[1]</td></tr>
<tr><td>5, 6:</td><td>Z=(Z+C)/(1+C*Z^3) &nbsp;(Vierpol)</td>
<td>&nbsp;&nbsp;&nbsp;9, 10:&nbsp;</td><td>dritte Wurzel nach Newton</td></tr>
</table>
[1] 7 und 8 rechnen ZS^Z, das Spiegelbild von Z^ZS; 107 rechnet Z^ZS.<br>
<br>
<b>Ab 101: mit komplexen Zahlen.</b> Die letzten zwei Ziffern nennen die Familie, die Hunderter das
Mitglied. 101 gibt dasselbe Bild wie 1, kennt aber elf statt sechs Zwillinge.
<table cellspacing="0" cellpadding="1">
<tr><td>..01, ..02:&nbsp;</td><td>Z=Z^2+C bis Z=Z^5+C und Z=Z^K+C</td></tr>
<tr><td>..03, ..04:</td><td>Auge: Z=Z*ZS+C und höhere Potenzen</td></tr>
<tr><td>..05, ..06:</td><td>Pole: Z=(Z+C)/(1+C*Z^n)</td></tr>
<tr><td>..07, ..08:</td><td>Exponenten: Z=Z^ZS+C, Z=Z^Z+C und andere</td></tr>
<tr><td>..09:</td><td>Newton: Z=Z-(Z^3-1)/(3*Z^2*P), mit P = koppX + i*koppY, und andere: 309
mit Z^5,<br>209 und 409 mit den Faktoren 3+3i und 5+5i, 509 bis 909 mit Z*ZS</td></tr>
<tr><td>..10:</td><td>Newton: Z=Z-(Z^n-P)/(n*Z^(n-1)*C)</td></tr>
<tr><td>..11, ..12:</td><td>Pol-Auge: Z=(Z+C)/(1+C*Zm), mit Zm=Z*ZS, und andere</td></tr>
</table>
<br><br>
<b>Gerade Nummern rechnen Juliamengen:</b> Z beginnt am Bildpunkt, und C ist fest („C-Julia X“,
„C-Julia Y“). Ein Klick in ein Bild mit ungerader Nummer trägt dort den angeklickten Punkt ein. Bei
2, 4, 6, 102, 104 und 106 verlangt das Menü ein C, das nicht 0 ist. Ungerade Nummern beginnen mit Z
= 0 und nehmen den Bildpunkt als C; nur Newton beginnt immer am Bildpunkt.<br>
<br>
<b>Vier Viertelbilder:</b> „1/4 Bild Pos.1“ bis „1/4 Bild Pos.4“ („Groesse/Size“) rechnen vier
Bilder in ein Fenster. Jede Position merkt sich ihre Einstellungen, Farben gelten für alle
vier.)html")};

constexpr Hilfetext Berechnung{
    QT_TRANSLATE_NOOP(
        "UI", "Wählbare Variable für den Iterations-Abbruch, Ermittlung von rq bei ZahlAbbr"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Wann ist ein Bildpunkt fertig?</b><br>
Nach jedem Schritt wird aus Z = x + i*y eine Zahl rq gebildet, und n zählt weiter. n beginnt bei 1,
ist am Ende also die Zahl der Schritte plus 1. Gerechnet wird, solange gilt:<br>
&nbsp;&nbsp;&nbsp;<b>rq &lt; ZahlAbbr</b> &nbsp;und&nbsp; n &lt; maxIter<br>
Das sind höchstens maxIter - 1 Schritte, am Anfang 255. Wer ZahlAbbr zuerst erreicht, heißt
divergent: C&nbsp;=&nbsp;100 tut es nach einem Schritt, mit n&nbsp;=&nbsp;2 und
rq&nbsp;=&nbsp;10000. Wer maxIter zuerst erreicht, heißt konvergent. Der letzte Wert rq bleibt für
die Farben gespeichert. Bei einem Zwilling zählt nur Z, nie W.<br>
<br>
<b>Womit anfangen?</b> Mit NrAbbruch 1, der üblichen Wahl. Für Zyklen: im Menü „NrAbbruch/Limit“ „5:
rq= Zyklen *Skal.“ wählen, bei ZahlAbbr 1000 und bei cTab 24 eintippen, „Start!“ drücken. Nun hat
jeder Teil der Mandelbrotmenge die Farbe seiner Zykluslänge.<br>
<br>
<b>Vier Wörter zu 4 und 5</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>delta</b>&nbsp;</td><td>wie weit Z von einem früheren Wert entfernt ist:
|x - xAlt| + |y - yAlt|</td></tr>
<tr><td><b>Genau</b>&nbsp;</td><td>wie klein delta sein muss, damit ein Zyklus als gefunden gilt;
Standard 0.0001</td></tr>
<tr><td><b>Farben</b>&nbsp;</td><td>wie viele Farben die Palette hat, am Anfang 582</td></tr>
<tr><td><b>Skal</b></td><td>Farben/ZyklusZahl ohne Rest, am Anfang 582/7, also 83 (ZyklusZahl:
Standard 7, höchstens 24)</td></tr>
</table>
<br><br>
<b>Wie rq gebildet wird, bestimmt NrAbbruch:</b>
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>rq = sqrt(x*x + y*y)</td>
<td>&nbsp;&nbsp;&nbsp;Abstand vom Nullpunkt</td></tr>
<tr><td>1:</td><td>rq = x*x + y*y</td>
<td>&nbsp;&nbsp;&nbsp;Quadrat des Abstands, die übliche Wahl</td></tr>
<tr><td>2:</td><td>rq = |x| + |y|</td>
<td>&nbsp;&nbsp;&nbsp;Grenze ist ein Quadrat, das auf der Spitze steht</td></tr>
<tr><td>3:</td><td>rq = x + y</td>
<td>&nbsp;&nbsp;&nbsp;Grenze ist eine schräge Gerade; negative Summen brechen nie ab</td></tr>
<tr><td>4:</td><td>rq = 100 + 2*Farben*delta/Genau</td>
<td>&nbsp;&nbsp;&nbsp;sucht Zyklen: wie genau schließt sich der Kreis?</td></tr>
<tr><td>5:</td><td>rq = 100 + Zyklen*Skal</td>
<td>&nbsp;&nbsp;&nbsp;sucht Zyklen: wie lang ist der Kreis?</td></tr>
<tr><td>6:</td><td>rq = x*x - y*y</td>
<td>&nbsp;&nbsp;&nbsp;Grenze ist eine Hyperbel</td></tr>
<tr><td>7:</td><td>rq = (x*x - y*y)^2</td>
<td>&nbsp;&nbsp;&nbsp;Hyperbeln in alle vier Richtungen</td></tr>
<tr><td>8:</td><td>rq = (x*x - y*y)^3</td>
<td>&nbsp;&nbsp;&nbsp;wie 6, die Grenze rückt näher an den Nullpunkt</td></tr>
<tr><td>9:</td><td>rq = (x*x - y*y)^4</td>
<td>&nbsp;&nbsp;&nbsp;wie 7, die Grenze rückt näher an den Nullpunkt</td></tr>
</table>
<br><br>
<b>Zyklen suchen mit 4 und 5</b><br>
Jedes neue Z wird mit den ZyklusZahl + 1 Werten vor ihm verglichen, mit dem jüngsten zuerst; Zyklen
ist die Länge des gefundenen Zyklus. Die Fixpunkte um Null haben die Zykluszahl 1, das ergibt bei 5
rq&nbsp;=&nbsp;183; Länge 2 ergibt 266. Ohne Fund läuft der Punkt bis maxIter und behält
rq&nbsp;=&nbsp;0; auch Punkte, die davonlaufen, zählen hier also zum Inneren.<br>
Ein Fund beendet die Rechnung nur, wenn sein rq ZahlAbbr erreicht. Bei 4 und
ZahlAbbr&nbsp;=&nbsp;400 schließt sich der Kreis von C&nbsp;=&nbsp;-1 genau, rq&nbsp;=&nbsp;100, und
läuft bis maxIter; C&nbsp;=&nbsp;-0.5 nähert sich erst und hört bei n&nbsp;=&nbsp;25 mit
rq&nbsp;=&nbsp;1169 auf. Sollen alle weiterlaufen: ZahlAbbr erhöhen oder verdoppeln (Standard =
400), hier auf 2000; dann färbt varKonv sie nach rq. Mehr Iterationen oder ein größeres Genau finden
mehr Zyklen.)html")};

constexpr Hilfetext Zwilling{QT_TRANSLATE_NOOP("UI", "Zum Zwillingsverfahren siehe auch %1"),
                             QT_TRANSLATE_NOOP("UI", R"html(<b>Ein erster Versuch</b><br>
Im Startbild der Mandelbrotmenge „Alle Glg. Zwilling 1 EIN“ wählen (Menü „Zwillinge/Twins“), dann
„Start!“ drücken. Mit den Vorgaben koppX&nbsp;=&nbsp;0.2 und koppY&nbsp;=&nbsp;0.1 zerfällt die
Scheibe links, und die Knospen werden zu Dornen. Tippt man bei beiden 0.5 ein, wird nach „Start!“
der Hauptkörper zum Tropfen. Zwilling 4 hebt dann auch die Gleichheit von oben und unten auf.
„Zwilling AUS“ bringt das alte Bild zurück.<br>
<br>
<b>Zwei Bahnen, die einander stören</b><br>
Neben Z = x + i*y läuft nach derselben Gleichung ein Zwilling W = p + i*t. Beide beginnen am
gleichen Punkt. In jedem Schritt tritt an die Stelle von C = Cx + i*Cy für Z die Größe A, gebildet
aus W, und für W die Größe A', gebildet aus dem alten Z. Beispiel Gleichung 101:<br>
&nbsp;&nbsp;&nbsp;<b>Z = Z*Z + A</b>, &nbsp;&nbsp;<b>W = W*W + A'</b><br>
Wie stark, bestimmen koppX und koppY, zusammen <b>P</b> = koppX + i*koppY. Nicht verwechseln: Das
große P ist diese Stärke, das kleine p der Realteil von W. Sind koppX und koppY beide 0, ändern die
Zwillinge 1 bis 6 und 8 nichts; 7, 9, 10 und 11 nehmen dann C*(1+i).<br>
<br>
<b>Die elf Kopplungen</b> (Re ist der Realteil, Im der Imaginärteil)
<table cellspacing="0" cellpadding="1">
<tr><td></td><td><b>für Z: A</b></td><td><b>für den Zwilling W: A'</b></td></tr>
<tr><td>1:&nbsp;</td><td>(Cx + koppX*p) + i*(Cy + koppY*t)&nbsp;&nbsp;&nbsp;</td>
<td>(Cx - koppX*x) + i*(Cy - koppY*y)</td></tr>
<tr><td>2:</td><td>(1 + koppX*p)*Cx + i*(1 - koppY*t)*Cy&nbsp;&nbsp;&nbsp;</td>
<td>(1 + koppX*x)*Cx + i*(1 - koppY*y)*Cy</td></tr>
<tr><td>3:</td><td>(1 + koppX*p)*Cx + i*(1 + koppY*t)*Cy&nbsp;&nbsp;&nbsp;</td>
<td>(1 - koppX*x)*Cx + i*(1 - koppY*y)*Cy</td></tr>
<tr><td>4:</td><td>C + P*W</td><td>C - P*Z</td></tr>
<tr><td>5:</td><td>C*(1 + koppX*W)</td><td>C*(1 - koppX*Z)</td></tr>
<tr><td>6:</td><td>(Cx + koppX*Re(C*W)) + i*(Cy + koppY*Im(C*W))&nbsp;&nbsp;&nbsp;</td>
<td>(Cx - koppX*Re(C*Z)) + i*(Cy - koppY*Im(C*Z))</td></tr>
<tr><td>7:</td><td>C*(1+i + koppX*W)</td><td>C*(1+i - koppX*Z)</td></tr>
<tr><td>8:</td><td>C*(1 + P*W)</td><td>C*(1 - P*Z)</td></tr>
<tr><td>9:</td><td>C*(1+i + P*W)</td><td>C*(1+i - P*Z)</td></tr>
<tr><td>10:&nbsp;</td><td>C*(1+i + P*W)</td><td>C*(1+i + P*Z)</td></tr>
<tr><td>11:&nbsp;</td><td>C*(1+i - P*W)</td><td>C*(1+i - P*Z)</td></tr>
</table>
<br><br>
<b>Was wo gilt</b><br>
Gleichungen 1 bis 10 kennen nur 1 bis 6. Bei 1 und 2 schaltet eine höhere Zahl den Zwilling ab, bei
3 bis 6, 9 und 10 bleibt sie ohne Wirkung. Bei 3 und 4 wird aus 6 die 5, und diese rechnet für Z die
Teile einzeln:<br>
&nbsp;&nbsp;&nbsp;A = (1 + Re(P*W))*Cx + i*(1 + Im(P*W))*Cy<br>
Bei 7 und 8 gilt immer 1. Ab 101 gelten alle elf; nur die Newton-Familien ..09 und ..10 haben keinen
Zwilling, ihnen dienen koppX und koppY als P.<br>
Das Einschalten setzt ein koppX oder koppY, das 0 ist, auf den Wert von Zoom. Die Nummer der
Gleichung trägt den Zwilling mit sich: 1010004 ist Gleichung 101 mit Zwilling 4.)html")};

constexpr Hilfetext Orbit{
    QT_TRANSLATE_NOOP("UI",
                      "Orbit: Der Weg von Z zwischen den Iterationen, eingeblendet als Polygon"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Was ein Orbit zeigt</b><br>
Die Farbe eines Bildpunkts sagt nur, wie seine Rechnung endet. Der Orbit zeigt den Weg dorthin:
Jedes neue Z ist ein Punkt der Ebene, und gerade Linien verbinden diese Punkte der Reihe nach.<br>
&nbsp;&nbsp;&nbsp;<b>Start, Z1, Z2, Z3, ...</b><br>
Der Linienzug beginnt am gewählten Bildpunkt. Bei Gleichungen, die mit Z = 0 anfangen, ist das der
Punkt C. Beim Zwilling wird der Weg von Z gezeichnet, nicht der von W.<br>
<br>
<b>Einschalten und klicken</b><br>
Menü „Linien/Lines“, etwa „Orbit EIN Rot/Red“. Sofort erscheint ein Orbit; jeder Klick ins Bild
wählt einen neuen Startpunkt, vergrößert wird dabei nicht. Das geht im Vollbild und im Viertelbild,
nicht in der Vorschau (dann erst „Start!“ drücken).<br>
Fast alle anderen Orbit-Befehle zeichnen nicht selbst: Nach ihnen zeigt <b>„Orbit
Aktualisieren/ShowOrbit“</b> oder der nächste Klick die Wirkung.<br>
<br>
<b>Woran man was erkennt</b><br>
&nbsp;&nbsp;&nbsp;Spirale in einen Punkt: ein Fixpunkt<br>
&nbsp;&nbsp;&nbsp;Stern oder Vieleck, immer wieder durchlaufen: ein Zyklus mit so vielen Ecken<br>
&nbsp;&nbsp;&nbsp;Linien, die immer länger und länger werden: ein divergenter Punkt<br>
Dass Linien das Bild verlassen, sagt allein nichts: In einem vergrößerten Bild tun das fast alle,
und schon im Startbild läuft C&nbsp;=&nbsp;-1.9, ein Punkt der Menge, bis 1.71. Nahe am Rand der
Menge irrt der Weg oft lange umher, ehe er sich entscheidet.<br>
<br>
<b>Mehr oder weniger zeigen</b><br>
&nbsp;&nbsp;&nbsp;„Linien dünn-dick/thin-thick“: dünne oder dicke Linien<br>
&nbsp;&nbsp;&nbsp;„maximal 120“ bis „maximal 5“: weniger Punkte statt der vollen 256<br>
&nbsp;&nbsp;&nbsp;„Alle Orbit anzeigen“: sammelt alle Wege, bis der Speicher gelöscht wird<br>
&nbsp;&nbsp;&nbsp;„Orbit erst ab Iterat.(= ZOOM) EIN“: überspringt den Anfang des Weges. Zuvor die
Zahl, etwa 100, bei Zoom eintippen und zweimal „Start!“ drücken: Das erste Mal kann noch einen neuen
Orbit zeichnen, und der setzt Zoom auf 1.<br>
&nbsp;&nbsp;&nbsp;„Orbit-Start vom Bild-Mittelpunkt“: beginnt genau in der Bildmitte. So lässt sich
ein Startpunkt auf alle Stellen genau eintippen und auch bei anderer Vergrößerung verfolgen.<br>
<br>
<b>Die Werte als Liste</b><br>
Menü „Datei/File“: „Letzten Orbit als Liste in HTML-Seite speichern/save“ schreibt alle gezeigten
Punkte mit sechzehn Stellen nach dem Komma und mit ihrer Lage im Bild in eine Datei. Sie heißt
OrbitWirbel mit Version, Datum und Uhrzeit, endet auf .htm und liegt ohne Rückfrage in dem Ordner,
in dem das Programm gestartet wurde. Darin lassen sich Zyklen Stelle für Stelle nachlesen.<br>
<br>
<b>Ausschalten</b><br>
„Orbit AUS/STOP“. Auch ein Befehl, der den Ausschnitt ändert, schaltet den angeklickten Orbit ab;
eine Meldung sagt es. Jeder neue Orbit setzt Zoom auf 1, im Steuerfeld steht das vom nächsten Klick
an; das Ausschalten setzt 0.5.)html")};

constexpr Hilfetext FarbTab{
    QT_TRANSLATE_NOOP("UI",
                      "Wählbare Farb-Tabellen mit vielen Farbvertauschungen, ohne neue Rechnung"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Vom Ergebnis zur Farbe</b><br>
varDiv oder varKonv machen aus jedem Ergebnis eine Farbzahl. Sie zählt in der Palette ab; nach der
letzten Farbe folgt wieder die erste:<br>
&nbsp;&nbsp;&nbsp;<b>Platz = cOffset + Fakt.Iter * Farbzahl</b><br>
cOffset verschiebt alle Farben, auch mit dem Schieber. Nichts davon rechnet das Bild neu. Der
Streifen rechts neben dem Bild zeigt die Palette.<br>
<br>
<b>cTab wählt Palette und Variante</b><br>
Vier Paletten mit je zwölf Varianten, nach der Nummer cTab:
<span style="white-space:pre">cTab 0-11, 12-23,  24-32, 36-47</span>
<table cellspacing="0" cellpadding="1">
<tr><td>Palette 1:&nbsp;</td><td>512 Spektralfarben, ab cTab = 0</td>
<td>&nbsp;&nbsp;&nbsp;Palette 3:&nbsp;</td><td>582 aus 6 Hauptfarben, ab cTab = 24</td></tr>
<tr><td>Palette 2:&nbsp;</td><td>582 aus 3 Hauptfarben, ab cTab = 12</td>
<td>&nbsp;&nbsp;&nbsp;Palette 4:&nbsp;</td><td>256, weniger bunt, ab cTab = 36</td></tr>
</table>
<br><br>
<b>Die 4x4-Matrix</b> zeigt sechzehn Vertauschungen zugleich („Matrix 4x4 EIN“ im Menü
„Farben/Colors“). Jede Zelle hat einen Code aus Zeile und Spalte und nennt hier, welche Werte zu
Rot, Grün, Blau werden (kurz R, G, B, und ~R für 255 - R):
<table cellspacing="0" cellpadding="1">
<tr><td>11: Vergleich&nbsp;&nbsp;&nbsp;&nbsp;</td><td>12: R B G&nbsp;&nbsp;&nbsp;&nbsp;</td>
<td>13: G R B&nbsp;&nbsp;&nbsp;&nbsp;</td><td>14: G B R</td></tr>
<tr><td>21: Vergleich</td><td>22: B R G</td><td>23: B G R</td><td>24: ~R B G</td></tr>
<tr><td>31: Vergleich</td><td>32: G ~R B&nbsp;&nbsp;&nbsp;&nbsp;</td>
<td>33: ~G B ~R&nbsp;&nbsp;&nbsp;&nbsp;</td><td>34: B R ~G</td></tr>
<tr><td>41: Vergleich</td><td>42: B ~G R</td><td>43: ~B R G</td><td>44: B G ~R</td></tr>
</table>
Die linke Spalte zeigt zum Vergleich die Palette selbst, je nach cTab vertauscht, umgekehrt oder
grau. Ein Klick auf eine Zelle macht sie zum Einzelbild; „cTab/Matrix +1“ führt zur Matrix und dann
zum nächsten cTab.<br>
<br>
<b>Die Reduktionen</b> setzen vor dem Vertauschen einen der drei Werte fest; nur die Variante 1
kehrt alle drei um. Zu sehen sind sie nur in den Spalten 2 bis 4 der Matrix, also bei Codes, die auf
2, 3 oder 4 enden. Ein Einzelbild hat am Anfang den Code 11:
Dort setzt keine einen Wert fest; cTab 14 etwa vertauscht nur Grün und Blau, statt Rot auf 128 zu
setzen. zahl_Tab ist die Variante 0 bis 11 der Palette, also cTab modulo 12 (der Rest beim Teilen
durch 12); R11, G11, B11 sind Rot, Grün und Blau der Farbe (bei 0 geschieht nichts):<br>
if (zahl_Tab == 1) { R11 = ~R11; G11 = ~G11; B11 = ~B11; }
<table cellspacing="0" cellpadding="1">
<tr><td>if (zahl_Tab == 2) R11 = 128;&nbsp;&nbsp;&nbsp;</td>
<td>if (zahl_Tab == 3) G11 = 128;&nbsp;&nbsp;&nbsp;</td><td>if (zahl_Tab == 4) B11 = 128;</td></tr>
<tr><td>if (zahl_Tab == 5) R11 = 0;</td><td>if (zahl_Tab == 6) G11 = 0;</td>
<td>if (zahl_Tab == 7) B11 = 0;</td></tr>
<tr><td>if (zahl_Tab == 8) R11 = 255;</td><td>if (zahl_Tab == 9) G11 = 255;</td>
<td>if (zahl_Tab == 10) B11 = 255;</td></tr>
<tr><td>if (zahl_Tab == 11) G11 = 80;</td><td></td><td></td></tr>
</table>)html")};

constexpr Hilfetext Div{
    QT_TRANSLATE_NOOP("UI", "Wählbare Variante für die Color-Berechnung im divergente Bereich, "
                            "zusammen mit dem Divergenz-Faktor FacDiv"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Der divergente Bereich</b><br>
Divergent heißt ein Bildpunkt, dessen Rechnung vor maxIter abbricht, bei der Mandelbrotmenge also
alles außerhalb. Zwei Zahlen bleiben von ihm übrig:<br>
&nbsp;&nbsp;&nbsp;<b>n</b>: die Zahl der Schritte plus 1, denn n zählt ab 1<br>
&nbsp;&nbsp;&nbsp;<b>rq</b>: der letzte gemessene Wert (am Anfang x*x + y*y), der erste also, der
ZahlAbbr erreicht hat<br>
C&nbsp;=&nbsp;100 ist nach einem Schritt fertig: n&nbsp;=&nbsp;2, rq&nbsp;=&nbsp;10000.
C&nbsp;=&nbsp;1 geht 1, 2, 5, 26: n&nbsp;=&nbsp;5, rq&nbsp;=&nbsp;676.<br>
n springt von Ring zu Ring um 1 und gibt scharfe Streifen. rq ändert sich im Ring stetig, etwa
zwischen 400 und 160000, und gibt weiche Übergänge. varDiv bestimmt, was davon zur Farbzahl wird;
FacDiv dehnt oder staucht den Farbverlauf.<br>
<br>
<b>Was die Varianten tun</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>2 bis 6</b>&nbsp;&nbsp;</td><td>zeigen Ringe gleicher Schrittzahl. Am Anfang sieht man
sie mit 5 und 6; bei 2 und 3 sind die Farben benachbarter Ringe kaum verschieden, bis Fakt.Iter
größer ist, etwa 20.</td></tr>
<tr><td><b>7</b>&nbsp;&nbsp;</td><td>nimmt rq selbst. FacDiv wirkt dort umgekehrt: Ein großer Wert
ergibt wenige Farben.</td></tr>
<tr><td><b>8 bis 11</b>&nbsp;&nbsp;</td><td>nehmen den Logarithmus: Er zähmt die großen Unterschiede
von rq. Ob rq 400 oder 100000 ist, ergibt bei 8 nur 599 oder 1151. Am Anfang gilt
varDiv&nbsp;=&nbsp;8 mit FacDiv&nbsp;=&nbsp;100.</td></tr>
<tr><td><b>12</b>&nbsp;&nbsp;</td><td>schwankt zwischen -FacDiv und FacDiv und gibt feine
Muster.</td></tr>
<tr><td><b>13 bis 15</b>&nbsp;&nbsp;</td><td>teilen durch rq: Die Reihenfolge kehrt sich um, und die
Farben drängen sich am Beginn des Rings, wo rq klein ist; mit 14 und 15 werden es sehr
viele.</td></tr>
<tr><td><b>16 bis 18</b>&nbsp;&nbsp;</td><td>ziehen die Wurzel: Sie zähmt weniger als der
Logarithmus. Am Ende des Rings, wo rq groß ist, stehen die Streifen dichter.</td></tr>
</table>
<br><br>
<b>Die Varianten varDiv</b> (ln ist der natürliche Logarithmus, Nachkommastellen entfallen)
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>alles schwarz</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;10:&nbsp;</td><td>ln(rq) * FacDiv / 6</td></tr>
<tr><td>1:</td><td>alles weiß</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;11:&nbsp;</td><td>2 * ln(rq) * FacDiv</td></tr>
<tr><td>2:</td><td>n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;12:&nbsp;</td><td>sin(rq) * FacDiv</td></tr>
<tr><td>3:</td><td>2 * n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;13:&nbsp;</td><td>1000 * FacDiv / rq</td></tr>
<tr><td>4:</td><td>5 * n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;14:&nbsp;</td><td>ZahlAbbr * 1000 * FacDiv / rq</td></tr>
<tr><td>5:</td><td>10 * n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;15:&nbsp;</td>
<td>ZahlAbbr * ZahlAbbr * FacDiv / rq</td></tr>
<tr><td>6:</td><td>FacDiv * n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;16:&nbsp;</td><td>sqrt(FacDiv * rq)</td></tr>
<tr><td>7:</td><td>rq / FacDiv</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;17:&nbsp;</td><td>sqrt(FacDiv * rq / 5)</td></tr>
<tr><td>8:</td><td>ln(rq) * FacDiv</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;18:&nbsp;</td><td>sqrt(FacDiv * rq / 20)</td></tr>
<tr><td>9:</td><td>ln(rq) * FacDiv / 3</td><td></td><td></td></tr>
</table>
<br><br>
„varDiv +1“ und „varDiv -1“ laufen im Kreis von 0 bis 18; eine eingetippte größere Zahl wirkt wie 8.
Die Farbzahl darf jede Größe haben: Am Ende der Palette beginnt sie von vorn. Neu gerechnet wird
dabei nichts.)html")};

constexpr Hilfetext Konv{
    QT_TRANSLATE_NOOP("UI", "Wählbare Variante für die Color-Berechnung im konvergenten Bereich, "
                            "zusammen mit dem Konvergenz-Faktor FacKonv"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>Der konvergente Bereich</b><br>
Konvergent heißt hier ein Bildpunkt, dessen Rechnung bis maxIter läuft, ohne ZahlAbbr zu erreichen:
das Innere der Mandelbrotmenge. Oft wird es einfach schwarz gemalt. Doch auch dort bleibt ein
letzter Wert rq, und der erzählt, wo Z zur Ruhe gekommen ist:<br>
&nbsp;&nbsp;&nbsp;<b>n</b> = maxIter, für alle diese Punkte gleich<br>
&nbsp;&nbsp;&nbsp;<b>rq</b>: der letzte Wert (am Anfang x*x + y*y), meist eine kleine Zahl<br>
Strebt Z zu einem Fixpunkt, wechselt die Farbe von Punkt zu Punkt weich. In einem Zyklus hängt rq
davon ab, bei welchem seiner Werte maxIter erreicht war. FacKonv dehnt oder staucht den
Farbverlauf.<br>
<br>
<b>Was die Varianten tun</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>2</b>&nbsp;&nbsp;</td><td>gibt eine einzige Farbe, die sich mit FacKonv wählen
lässt.</td></tr>
<tr><td><b>3 bis 6</b>&nbsp;&nbsp;</td><td>nehmen rq selbst, ein-, fünf-, zehn- und hundertmal. Am
Anfang gilt varKonv = 3 mit FacKonv&nbsp;=&nbsp;100; der Hauptkörper ist dann einfarbig, denn die
ersten 33 Farben der Palette sind gleich. Mit 6 oder mit FacKonv&nbsp;=&nbsp;2000 zeigt er
Ringe.</td></tr>
<tr><td><b>7 bis 10</b>&nbsp;&nbsp;</td><td>spreizen sehr kleine rq, wie sie nahe bei Null
entstehen; ihre Logarithmen sind negativ, die Palette wird dann rückwärts durchlaufen.</td></tr>
<tr><td><b>11</b>&nbsp;&nbsp;</td><td>teilt durch rq: Die Reihenfolge kehrt sich um, um Null drängen
sich die Farben.</td></tr>
<tr><td><b>12</b>&nbsp;&nbsp;</td><td>zieht die Wurzel: Kleine Unterschiede nahe bei Null werden
größer.</td></tr>
</table>
<br><br>
<b>Die Varianten varKonv</b> (ln ist der natürliche Logarithmus, Nachkommastellen entfallen)
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>alles schwarz</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;7:&nbsp;</td><td>ln(rq) * FacKonv</td></tr>
<tr><td>1:</td><td>alles weiß</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;8:</td><td>10 * FacKonv * ln(rq)</td></tr>
<tr><td>2:</td><td>FacKonv * n</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;9:</td><td>100 * FacKonv * ln(rq)</td></tr>
<tr><td>3:</td><td>FacKonv * rq</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;10:&nbsp;</td><td>ln(rq) * FacKonv / 10</td></tr>
<tr><td>4:</td><td>5 * FacKonv * rq</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;11:&nbsp;</td><td>FacKonv / rq</td></tr>
<tr><td>5:</td><td>10 * FacKonv * rq</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;12:&nbsp;</td><td>sqrt(FacKonv * rq)</td></tr>
<tr><td>6:</td><td>100 * FacKonv * rq</td><td></td><td></td></tr>
</table>
<br><br>
<b>Besondere Werte, zum Eintippen</b><br>
&nbsp;&nbsp;&nbsp;13 bis 999 wirken wie 4.<br>
&nbsp;&nbsp;&nbsp;1000 zeichnet das Innere nicht; es bleibt stehen, was dort zu sehen war.<br>
&nbsp;&nbsp;&nbsp;Ab 1001 wird das Innere einfarbig, mit Farbzahl = varKonv - 1000.<br>
<br>
<b>Zyklen in Farbe</b><br>
Besonders lohnend ist NrAbbruch 4 oder 5 mit größerem ZahlAbbr, etwa 2000: Dann sagt rq, ob ein
Zyklus gefunden wurde, und bei 5 bekommt jede Zykluslänge ihre eigene Farbe, am schönsten mit cTab
24. Leicht zu verwechseln sind dort nur die Längen 1 und 5 (Platz 258 und 284), und mit den
Paletten 2 und 3 sieht Länge 7 am Anfang wie keine aus: 681 * 100 führt auf Platz 6, kein Zyklus auf
Platz 0.<br>
„varKonv +1“ und „varKonv -1“ laufen im Kreis von 0 bis 12. Neu gerechnet wird dabei
nichts.)html")};

} // namespace

// Filled in the order of Hilfethema.
const Hilfetabelle g_HilfeDeutsch = {
    KomplexeZahlen, Fraktale, SpezialFraktale, Gleichungen, Berechnung,
    Zwilling,       Orbit,    FarbTab,         Div,         Konv};

const Hilfetext g_HilfeAutor = {QT_TRANSLATE_NOOP("UI", "About Menu"),
                                QT_TRANSLATE_NOOP("UI", R"html(<b>Wirbelwerk %2</b><br>
<br>
Ein Fraktal-Explorer: Mandelbrotmenge, Juliamengen und rund hundert verwandte Gleichungen, mit
Zwillingsverfahren, Orbit-Modus und vielen Farbtafeln.<br>
<br>
Zum Anfang: „About Fraktale allgemein“ und „About Gleichungen“ im Menü „Hilfe“.<br>
Where to begin: "About Fractals general" and "About Equations" in the menu "Help".<br>
<br>
Autoren: die Entwickler von Wirbelwerk<br>
Im Netz: %1)html")};
