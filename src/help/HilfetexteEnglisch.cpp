#include "help/Hilfetexte.h"

#include <QtGlobal>

namespace {

constexpr Hilfetext ComplexNumbers{QT_TRANSLATE_NOOP("UI", "Complex numbers"),
                                   QT_TRANSLATE_NOOP("UI", R"html(<b>Numbers with two parts</b><br>
An ordinary number is a point on a line. A complex number Z is a point in a plane: x counts to the
right (real part), y counts upward (imaginary part). It is written with the symbol i, whose square
is -1:<br>
&nbsp;&nbsp;&nbsp;<b>Z = x + i*y</b><br>
&nbsp;&nbsp;&nbsp;i*i = -1<br>
So Z = 3 + 2i lies three steps to the right of the origin and two steps above it.<br>
<br>
<b>Calculating</b><br>
To add two numbers, add each part by itself; this shifts the point. To multiply them, multiply every
term with every other as usual and replace i*i by -1:<br>
&nbsp;&nbsp;&nbsp;(1 + 2i) + (3 + i) = 4 + 3i<br>
&nbsp;&nbsp;&nbsp;(1 + 2i) * (3 + i) = 3 + i + 6i + 2*i*i = 1 + 7i<br>
For the square, and for the distance from the origin, this gives:<br>
&nbsp;&nbsp;&nbsp;<b>Z*Z = (x*x - y*y) + i*(2*x*y)</b><br>
&nbsp;&nbsp;&nbsp;|Z| = sqrt(x*x + y*y) &nbsp;&nbsp;(sqrt is the square root)<br>
Seen as a picture: squaring doubles the angle (that the line from the origin to Z makes with the
horizontal axis) and squares the distance. Multiplication turns and stretches, adding C shifts. Only
both in turn, over and over again, make the whirls in the pictures.<br>
<br>
<b>The conjugate ZS</b><br>
ZS is the mirror image of Z at the horizontal axis; only the sign of y changes:<br>
&nbsp;&nbsp;&nbsp;<b>ZS = x - i*y</b><br>
&nbsp;&nbsp;&nbsp;Z*ZS = x*x + y*y<br>
The product Z*ZS has no imaginary part and is never negative: it is the distance squared. In the
names of the equations, Zq stands for Z*Z and Zm for Z*ZS.<br>
<br>
<b>C, the grid of the picture</b><br>
The picture is a section of this plane. For equations with an odd number (at the start it is 1),
except those by Newton's method, every pixel stands for one number C; for the others Z starts there,
and C is fixed. The fields next to "CenterX =0" and "CenterY =0" give the middle of the picture, the
field below them its width. From one pixel to the next, x grows by one step to the right, and y
falls by the same step downward:<br>
&nbsp;&nbsp;&nbsp;step = width / number of picture columns<br>
The smaller the width, the stronger the magnification.)html")};

constexpr Hilfetext Fractals{QT_TRANSLATE_NOOP("UI", "The Mandelbrot set as an example"),
                             QT_TRANSLATE_NOOP("UI", R"html(<b>One rule, over and over again</b><br>
A fractal grows out of a simple rule whose result is put back in, again and again. The rule of the
Mandelbrot set is:<br>
&nbsp;&nbsp;&nbsp;<b>Z = Z*Z + C</b>, starting with Z = 0<br>
Every pixel is a complex number C, a point of the plane (more in "About Complex Numbers"). For each
of them the rule is repeated (iterated). Three examples:<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;1: &nbsp;0, 1, 2, 5, 26, ... &nbsp;grows beyond all bounds<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;-1: &nbsp;0, -1, 0, -1, ... &nbsp;swings to and fro forever<br>
&nbsp;&nbsp;&nbsp;C&nbsp;=&nbsp;-0.5: &nbsp;0, -0.5, -0.25, -0.4375, ... &nbsp;comes to rest at
-0.366<br>
If Z stays nearby forever, C belongs to the Mandelbrot set (convergent). If Z runs away, C lies
outside (divergent), and the color shows how fast. On the border a trifle decides between the two;
that is why something new turns up there at every magnification.<br>
<br>
<b>The start picture</b> reaches from C(-2.5, 2) at the top left to C(1.5, -2) at the bottom right
when it is square. If it is wider than high, the same amount is missing at the top and at the
bottom. At first it fills a quarter only; in the menu "Groesse/Size", "Aktives zum vollem
Bild/FullPicture" makes it large. A click magnifies around the clicked point, with
Zoom&nbsp;=&nbsp;0.5 to half the width.<br>
<br>
<b>Fixed points and cycles</b><br>
In the heart-shaped main body, Z tends to a fixed point. In the disc to its left, around
C&nbsp;=&nbsp;-1, Z alternates between two values, in the smaller buds between three, four or more.
The orbit mode draws such cycles. NrAbbruch 5 colors by their length, NrAbbruch 4 by how closely
they close.<br>
<br>
<b>Why ZahlAbbr&nbsp;=&nbsp;400?</b><br>
At most maxIter - 1 steps are made, 255 at the start. The calculation stops earlier as soon as<br>
&nbsp;&nbsp;&nbsp;rq = x*x + y*y &nbsp;(with Z = x + i*y)<br>
reaches ZahlAbbr, the bailout value in the panel. For this equation 4 would do: whatever is farther
than 2 from the origin does not come back. The default of 400, a distance of 20, costs only a few
more steps. In return, C hardly counts beside Z*Z any more, and colors made from rq run more
smoothly.<br>
<br>
<b>Julia sets</b><br>
Keep C fixed and let Z start at every pixel, and you get a Julia set, a different one for each C.
This is how to get there:<br>
&nbsp;&nbsp;&nbsp;1. Click into the Mandelbrot set, close to its border. The picture is magnified,
and the point now stands in "C-Julia X" and "C-Julia Y".<br>
&nbsp;&nbsp;&nbsp;2. Choose the next even equation, "2: Juliamenge Z=Z*Z +C(const)". A small preview
appears.<br>
&nbsp;&nbsp;&nbsp;3. Press "CenterX =0" and "CenterY =0", then "BreiteX *2" until the width is
4.<br>
&nbsp;&nbsp;&nbsp;4. Press "Start!". With center 0 and width 4 you nearly always see the whole Julia
set.<br>
The way back: "1: Mandelbrotmenge Z=Z*Z+C" and "Reset zum Startbild der Gleichung" (menu
"Datei/File").)html")};

constexpr Hilfetext SpecialFractals{QT_TRANSLATE_NOOP("UI", "What is different here?"),
                                    QT_TRANSLATE_NOOP("UI", R"html(<b>Exploring feedback</b><br>
Wirbelwerk wants to show not only beautiful pictures but also where they come from. Wherever a
result becomes a cause again, in the weather, in a thermostat, in the howl of microphone and
loudspeaker, there is feedback. Here it is cut down to a single line:<br>
&nbsp;&nbsp;&nbsp;<b>new Z = f(old Z, C)</b><br>
There are 98 such equations to choose from. The settings are kept when you change the equation, with
few exceptions (see "About Equations"); so you can see what in a picture comes from the equation and
what from the rest.<br>
<br>
<b>Equations with the conjugate ZS = x - i*y</b><br>
Put the mirror image ZS in the place of a Z, and quite different shapes appear:<br>
&nbsp;&nbsp;&nbsp;3: Z = Z*ZS + C &nbsp;("Auge", the eye)<br>
&nbsp;&nbsp;&nbsp;107: Z = Z^ZS + C &nbsp;(a relative of 7, "Spinne", the spider)<br>
&nbsp;&nbsp;&nbsp;911: Z = (Z+C)/(1+C*Z*ZS) &nbsp;("Dreipol-Auge", the three-pole eye)<br>
<br>
<b>The twin method</b><br>
Beside Z runs a second value W, its twin, by the same equation. Each changes the constant of the
other, with the strength koppX and koppY. Even small values such as 0.1 can bend a picture or break
it open. The menu "Zwillinge/Twins" offers eleven couplings.<br>
<br>
<b>Crosses and grid</b><br>
Center cross, zero cross and grid (menu "Linien/Lines") turn the picture into a map. The distance
between the grid lines is the value of Zoom: with Zoom&nbsp;=&nbsp;0.5 there is a line every 0.5,
counted from the origin or from the center of the picture.<br>
<br>
<b>The orbit mode</b><br>
It shows what happens in a single pixel: the path of Z, step by step, as a polygon on top of the
picture and, if you like, as a list of numbers.<br>
<br>
<b>Colors without a new calculation</b><br>
For every pixel the last value rq and the step counter n are kept. So palettes, variants and
factors can be changed without calculating again; the 4x4 matrix puts sixteen color tables side by
side.)html")};

constexpr Hilfetext Equations{QT_TRANSLATE_NOOP("UI", "To select the equation"),
                              QT_TRANSLATE_NOOP("UI", R"html(<b>Choose, then "Start!"</b><br>
A choice in the menu "Gleichung/Equation" draws only a small preview in a corner, and as long as it
shows, clicks into the picture do not count. Only "Start!" calculates the picture. Or type the
number at the top of the control panel and press "Start!". The first picture of the program is only
a quarter; in the menu "Groesse/Size", "Aktives zum vollem Bild/FullPicture" makes it large.<br>
The other settings are carried over, section and colors included, so that equations can be compared.
Exceptions: 8 sets C-Julia to -1, the Newton equations ..09 and ..10 change a koppX of 0 to 1. If
there is nothing much to see, use "Datei/File", "Reset zum Startbild der Gleichung": it brings back
the start picture of the equation.<br>
<br>
<b>The power K</b> belongs to the equations with K in their name; the standard is 10. The K entries
at the end of the menu draw nothing until you press "Start!". Where it says "K ungerade" (K odd),
choose "Potenzzahl K=7" first: with the K&nbsp;=&nbsp;10 of the program start the power is missing,
and 603 becomes Z=Z+C. "Potenzzahl K=Zoom" takes the whole part of Zoom; "K gerade" means K even. A
K other than 10 is shown in the title.<br>
<br>
<b>1 to 10: in components</b>, calculated with the real numbers x and y
<table cellspacing="0" cellpadding="1">
<tr><td>1, 2:&nbsp;</td><td>Z=Z*Z+C &nbsp;(Mandelbrot)</td>
<td>&nbsp;&nbsp;&nbsp;7:&nbsp;</td><td>Z=Z^ZS+C &nbsp;(spider) &nbsp;[1]</td></tr>
<tr><td>3, 4:</td><td>Z=Z*ZS+C &nbsp;(eye)</td>
<td>&nbsp;&nbsp;&nbsp;8:</td><td>Z=Z^ZS-1 &nbsp;(skull) &nbsp;[1]</td></tr>
<tr><td>5, 6:</td><td>Z=(Z+C)/(1+C*Z^3) &nbsp;(four poles)</td>
<td>&nbsp;&nbsp;&nbsp;9, 10:&nbsp;</td><td>cube root by Newton's method</td></tr>
</table>
[1] 7 and 8 calculate ZS^Z, the mirror image of Z^ZS; 107 calculates Z^ZS.<br>
<br>
<b>From 101 on: with complex numbers.</b> The last two digits name the family, the hundreds the
member. 101 gives the same picture as 1 but knows eleven twins instead of six.
<table cellspacing="0" cellpadding="1">
<tr><td>..01, ..02:&nbsp;</td><td>Z=Z^2+C to Z=Z^5+C, and Z=Z^K+C</td></tr>
<tr><td>..03, ..04:</td><td>eye: Z=Z*ZS+C and higher powers</td></tr>
<tr><td>..05, ..06:</td><td>poles: Z=(Z+C)/(1+C*Z^n)</td></tr>
<tr><td>..07, ..08:</td><td>exponents: Z=Z^ZS+C, Z=Z^Z+C and others</td></tr>
<tr><td>..09:</td><td>Newton: Z=Z-(Z^3-1)/(3*Z^2*P), with P = koppX + i*koppY, and others: 309 with
Z^5,<br>209 and 409 with the factors 3+3i and 5+5i, 509 to 909 with Z*ZS</td></tr>
<tr><td>..10:</td><td>Newton: Z=Z-(Z^n-P)/(n*Z^(n-1)*C)</td></tr>
<tr><td>..11, ..12:</td><td>pole eye: Z=(Z+C)/(1+C*Zm), with Zm=Z*ZS, and others</td></tr>
</table>
<br><br>
<b>Even numbers make Julia sets:</b> Z starts at the pixel, and C is fixed ("C-Julia X", "C-Julia
Y"). A click into a picture with an odd number puts the clicked point there. For 2, 4, 6, 102, 104
and 106 the menu asks for a C other than 0. Odd numbers start with Z = 0 and take the pixel as C;
only Newton always starts at the pixel.<br>
<br>
<b>Four quarter pictures:</b> "1/4 Bild Pos.1" to "1/4 Bild Pos.4" ("Groesse/Size") calculate four
pictures in one window. Each position remembers its settings, while colors hold for all
four.)html")};

constexpr Hilfetext Calc{
    QT_TRANSLATE_NOOP(
        "UI", "Selectable variable for the iteration abort, determination of rq for ZahlAbbr"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>When is a pixel finished?</b><br>
After every step a number rq is formed from Z = x + i*y, and n counts on. n starts at 1, so in the
end it is the number of steps plus 1. The calculation goes on as long as<br>
&nbsp;&nbsp;&nbsp;<b>rq &lt; ZahlAbbr</b> &nbsp;and&nbsp; n &lt; maxIter<br>
That is at most maxIter - 1 steps, 255 at the start. A pixel that reaches ZahlAbbr first is called
divergent: C&nbsp;=&nbsp;100 does so after one step, with n&nbsp;=&nbsp;2 and rq&nbsp;=&nbsp;10000.
One that reaches maxIter first is called convergent. The last value of rq is kept for the colors.
With a twin, only Z counts, never W.<br>
<br>
<b>Where to begin?</b> With NrAbbruch 1, the usual choice. For cycles: choose "5: rq= Zyklen *Skal."
in the menu "NrAbbruch/Limit", type 1000 for ZahlAbbr and 24 for cTab, and press "Start!". Now every
part of the Mandelbrot set has the color of its cycle length.<br>
<br>
<b>Four words on 4 and 5</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>delta</b>&nbsp;</td><td>how far Z is from an earlier value: |x - xOld| + |y -
yOld|</td></tr>
<tr><td><b>Genau</b>&nbsp;</td><td>how small delta must be for a cycle to count as found; standard
0.0001</td></tr>
<tr><td><b>colors</b>&nbsp;</td><td>how many colors the palette has, 582 at the start</td></tr>
<tr><td><b>scale</b></td><td>("Skal") colors/ZyklusZahl without remainder, at the start 582/7, that
is 83 (ZyklusZahl: standard 7, at most 24)</td></tr>
</table>
<br><br>
<b>How rq is formed depends on NrAbbruch ("VariLimit"):</b>
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>rq = sqrt(x*x + y*y)</td>
<td>&nbsp;&nbsp;&nbsp;distance from the origin</td></tr>
<tr><td>1:</td><td>rq = x*x + y*y</td>
<td>&nbsp;&nbsp;&nbsp;distance squared, the usual choice</td></tr>
<tr><td>2:</td><td>rq = |x| + |y|</td>
<td>&nbsp;&nbsp;&nbsp;the limit is a square standing on its corner</td></tr>
<tr><td>3:</td><td>rq = x + y</td>
<td>&nbsp;&nbsp;&nbsp;the limit is a slanting line; negative sums never stop</td></tr>
<tr><td>4:</td><td>rq = 100 + 2*colors*delta/Genau</td>
<td>&nbsp;&nbsp;&nbsp;looks for cycles: how closely does the circle close?</td></tr>
<tr><td>5:</td><td>rq = 100 + cycle*scale</td>
<td>&nbsp;&nbsp;&nbsp;looks for cycles: how long is the circle?</td></tr>
<tr><td>6:</td><td>rq = x*x - y*y</td>
<td>&nbsp;&nbsp;&nbsp;the limit is a hyperbola</td></tr>
<tr><td>7:</td><td>rq = (x*x - y*y)^2</td>
<td>&nbsp;&nbsp;&nbsp;hyperbolas in all four directions</td></tr>
<tr><td>8:</td><td>rq = (x*x - y*y)^3</td>
<td>&nbsp;&nbsp;&nbsp;like 6, the limit moves closer to the origin</td></tr>
<tr><td>9:</td><td>rq = (x*x - y*y)^4</td>
<td>&nbsp;&nbsp;&nbsp;like 7, the limit moves closer to the origin</td></tr>
</table>
<br><br>
<b>Looking for cycles with 4 and 5</b><br>
Each new Z is compared with the ZyklusZahl + 1 values before it, the latest first; cycle is the
length of the cycle found. The fixed points around zero have the cycle number 1, which gives
rq&nbsp;=&nbsp;183 with 5; length 2 gives 266. If nothing is found, the pixel runs on to maxIter and
keeps rq&nbsp;=&nbsp;0; so points that run away count as inside here.<br>
A find ends the calculation only if its rq reaches ZahlAbbr. With 4 and ZahlAbbr&nbsp;=&nbsp;400 the
circle of C&nbsp;=&nbsp;-1 closes exactly, rq&nbsp;=&nbsp;100, and runs on to maxIter;
C&nbsp;=&nbsp;-0.5 is still approaching and stops at n&nbsp;=&nbsp;25 with rq&nbsp;=&nbsp;1169. If
you want all of them to run on: increase/double the ZahlAbbruch (default=400), here to 2000; then
varKonv colors them by rq. More iterations or a larger Genau find more cycles.)html")};

constexpr Hilfetext Twin{QT_TRANSLATE_NOOP("UI", "On the twin method see also %1"),
                         QT_TRANSLATE_NOOP("UI", R"html(<b>A first try</b><br>
In the start picture of the Mandelbrot set choose "Alle Glg. Zwilling 1 EIN" (menu
"Zwillinge/Twins"), then "Start!". With the defaults koppX&nbsp;=&nbsp;0.2 and koppY&nbsp;=&nbsp;0.1
the disc on the left falls apart and the buds turn into thorns. Type 0.5 for both, and after
"Start!" the main body becomes a drop. Twin 4 then ends the likeness of top and bottom as well.
"Zwilling AUS" brings the old picture back.<br>
<br>
<b>Two orbits that disturb each other</b><br>
Beside Z = x + i*y runs a twin W = p + i*t, by the same equation. Both start at the same point. In
every step, Z uses in the place of C = Cx + i*Cy a value A made from W, and W uses a value A' made
from the old Z. For equation 101 that is:<br>
&nbsp;&nbsp;&nbsp;<b>Z = Z*Z + A</b>, &nbsp;&nbsp;<b>W = W*W + A'</b><br>
How strongly, is set by koppX and koppY, together <b>P</b> = koppX + i*koppY. Do not mix them up:
the capital P is this strength, the small p is the real part of W. If koppX and koppY are both 0,
the twins 1 to 6 and 8 change nothing; 7, 9, 10 and 11 then use C*(1+i).<br>
<br>
<b>The eleven couplings</b> (Re is the real part, Im the imaginary part)
<table cellspacing="0" cellpadding="1">
<tr><td></td><td><b>for Z: A</b></td><td><b>for the twin W: A'</b></td></tr>
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
<b>What holds where</b><br>
Equations 1 to 10 know only 1 to 6. In 1 and 2 a higher number switches the twin off, in 3 to 6, 9
and 10 it has no effect. In 3 and 4, 6 becomes 5, and 5 calculates the parts for Z one by one:<br>
&nbsp;&nbsp;&nbsp;A = (1 + Re(P*W))*Cx + i*(1 + Im(P*W))*Cy<br>
In 7 and 8 it is always 1. From 101 on all eleven hold; only the Newton families ..09 and ..10 have
no twin, they use koppX and koppY as P.<br>
Switching a twin on sets a koppX or koppY that is 0 to the value of Zoom. The number of the equation
carries the twin along: 1010004 is equation 101 with twin 4.)html")};

constexpr Hilfetext OrbitEn{
    QT_TRANSLATE_NOOP("UI", "Orbit: The path of Z between the iterations, displayed as a polygon"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>What an orbit shows</b><br>
The color of a pixel only tells how its calculation ends. The orbit shows the way there: every new Z
is a point of the plane, and straight lines join these points in order.<br>
&nbsp;&nbsp;&nbsp;<b>start, Z1, Z2, Z3, ...</b><br>
The polygon begins at the chosen pixel. For equations that start with Z = 0 this is the point C.
With a twin, the path of Z is drawn, not that of W.<br>
<br>
<b>Switching on and clicking</b><br>
Menu "Linien/Lines", for example "Orbit EIN Rot/Red". An orbit appears at once; every click into the
picture chooses a new starting point and does not magnify. This works in the full picture and in a
quarter picture, not in a preview (press "Start!" first).<br>
Nearly all other orbit entries draw nothing by themselves: after them, <b>"Orbit
Aktualisieren/ShowOrbit"</b> or the next click shows what they do.<br>
<br>
<b>What to look for</b><br>
&nbsp;&nbsp;&nbsp;a spiral into one point: a fixed point<br>
&nbsp;&nbsp;&nbsp;a star or polygon, run through again and again: a cycle with as many corners<br>
&nbsp;&nbsp;&nbsp;lines that grow longer and longer: a divergent pixel<br>
That lines leave the picture says nothing by itself: in a magnified picture nearly all of them do,
and even in the start picture C&nbsp;=&nbsp;-1.9, a point of the set, goes as far as 1.71. Close to
the border of the set, the path often wanders about for a long time before it decides.<br>
<br>
<b>Showing more or less</b><br>
&nbsp;&nbsp;&nbsp;"Linien dünn-dick/thin-thick": thin or thick lines<br>
&nbsp;&nbsp;&nbsp;"maximal 120" to "maximal 5": fewer points instead of the full 256<br>
&nbsp;&nbsp;&nbsp;"Alle Orbit anzeigen": collects all paths until the store is deleted<br>
&nbsp;&nbsp;&nbsp;"Orbit erst ab Iterat.(= ZOOM) EIN": skips the beginning of the path. Before that,
type the number, say 100, for Zoom and press "Start!" twice: the first time may still draw a new
orbit, which sets Zoom to 1.<br>
&nbsp;&nbsp;&nbsp;"Orbit-Start vom Bild-Mittelpunkt": begins exactly at the center of the picture.
So a starting point can be typed in to the last digit, and followed at another magnification
too.<br>
<br>
<b>The values as a list</b><br>
"Datei/File", "Letzten Orbit als Liste in HTML-Seite speichern/save" writes all points shown, with
sixteen decimals and with their place in the picture, to a file. Its name is OrbitWirbel with
version, date and time and ends in .htm; without asking, it goes to the folder in which the program
was started. There you can follow a cycle digit by digit.<br>
<br>
<b>Switching off</b><br>
"Orbit AUS/STOP". A command that changes the section also switches a clicked orbit off; a message
tells you. Every new orbit sets Zoom to 1, which the panel shows from the next click on; switching
off sets it to 0.5.)html")};

constexpr Hilfetext ColorTab{
    QT_TRANSLATE_NOOP("UI",
                      "Selectable color tables with many color swaps, without new calculation"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>From the result to the color</b><br>
varDiv or varKonv turn every result into a color number. It counts off along the palette; after the
last color comes the first again:<br>
&nbsp;&nbsp;&nbsp;<b>place = cOffset + Fact.Iter * color number</b><br>
cOffset shifts all colors, and so does the slider. None of this calculates the picture anew. The
strip at the right of the picture shows the palette.<br>
<br>
<b>cTab chooses palette and variant</b><br>
Four palettes with twelve variants each, by the number cTab:
<span style="white-space:pre">cTab 0-11, 12-23,  24-32, 36-47</span>
<table cellspacing="0" cellpadding="1">
<tr><td>Palette 1:&nbsp;</td><td>512 spectral colors, from cTab = 0</td>
<td>&nbsp;&nbsp;&nbsp;Palette 3:&nbsp;</td><td>582 from 6 main colors, from cTab = 24</td></tr>
<tr><td>Palette 2:&nbsp;</td><td>582 from 3 main colors, from cTab = 12</td>
<td>&nbsp;&nbsp;&nbsp;Palette 4:&nbsp;</td><td>256, less colorful, from cTab = 36</td></tr>
</table>
<br><br>
<b>The 4x4 matrix</b> shows sixteen swaps at a time ("Matrix 4x4 EIN" in the menu "Farben/Colors").
Each cell has a code of row and column and names here the values that become red, green, blue (R, G,
B for short, and ~R for 255 - R):
<table cellspacing="0" cellpadding="1">
<tr><td>11: comparison&nbsp;&nbsp;&nbsp;&nbsp;</td><td>12: R B G&nbsp;&nbsp;&nbsp;&nbsp;</td>
<td>13: G R B&nbsp;&nbsp;&nbsp;&nbsp;</td><td>14: G B R</td></tr>
<tr><td>21: comparison</td><td>22: B R G</td><td>23: B G R</td><td>24: ~R B G</td></tr>
<tr><td>31: comparison</td><td>32: G ~R B&nbsp;&nbsp;&nbsp;&nbsp;</td>
<td>33: ~G B ~R&nbsp;&nbsp;&nbsp;&nbsp;</td><td>34: B R ~G</td></tr>
<tr><td>41: comparison</td><td>42: B ~G R</td><td>43: ~B R G</td><td>44: B G ~R</td></tr>
</table>
The left column shows the palette itself for comparison, swapped, inverted or in grey, depending on
cTab. A click on a cell makes it the single picture; "cTab/Matrix +1" leads to the matrix and then
to the next cTab.<br>
<br>
<b>The reductions</b> fix one of the three values before the swapping; only variant 1 inverts all
three. They show only in the columns 2 to 4 of the matrix, that is with codes that end in 2, 3 or 4.
A single picture starts with code 11: there
none of them fixes a value; cTab 14, for example, only swaps green and blue instead of setting red
to 128. zahl_Tab is the variant 0 to 11 of the palette, that is cTab modulo 12 (the remainder of the
division by 12); R11, G11, B11 are the red, green and blue of the color (0 does nothing):<br>
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

constexpr Hilfetext DivEn{
    QT_TRANSLATE_NOOP("UI", "Selectable variant for the color calculation in the divergent range, "
                            "together with the divergence factor FacDiv"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>The divergent range</b><br>
A pixel is called divergent when its calculation stops before maxIter; for the Mandelbrot set that
is everything outside. Two numbers are left of it:<br>
&nbsp;&nbsp;&nbsp;<b>n</b>: the number of steps plus 1, since n counts from 1<br>
&nbsp;&nbsp;&nbsp;<b>rq</b>: the last value measured (x*x + y*y at the start), that is the first one
that reached ZahlAbbr<br>
C&nbsp;=&nbsp;100 is finished after one step: n&nbsp;=&nbsp;2, rq&nbsp;=&nbsp;10000. C&nbsp;=&nbsp;1
goes 1, 2, 5, 26: n&nbsp;=&nbsp;5, rq&nbsp;=&nbsp;676.<br>
n jumps by 1 from ring to ring and gives sharp stripes. rq changes steadily within a ring, between
about 400 and 160000, and gives soft transitions. varDiv decides which of them becomes the color
number; FacDiv stretches or squeezes the run of colors.<br>
<br>
<b>What the variants do</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>2 to 6</b>&nbsp;&nbsp;</td><td>show rings of equal step number. At the start you see them
with 5 and 6; with 2 and 3 the colors of neighboring rings hardly differ until Fact.Iter is larger,
about 20.</td></tr>
<tr><td><b>7</b>&nbsp;&nbsp;</td><td>takes rq itself. FacDiv works the other way round there: a
large value gives few colors.</td></tr>
<tr><td><b>8 to 11</b>&nbsp;&nbsp;</td><td>take the logarithm: it tames the great differences of rq.
Whether rq is 400 or 100000 gives only 599 or 1151 with 8. At the start varDiv&nbsp;=&nbsp;8 and
FacDiv&nbsp;=&nbsp;100.</td></tr>
<tr><td><b>12</b>&nbsp;&nbsp;</td><td>swings between -FacDiv and FacDiv and gives fine
patterns.</td></tr>
<tr><td><b>13 to 15</b>&nbsp;&nbsp;</td><td>divide by rq: the order is reversed, and the colors
crowd at the beginning of the ring, where rq is small; with 14 and 15 they become very
many.</td></tr>
<tr><td><b>16 to 18</b>&nbsp;&nbsp;</td><td>take the square root: it tames less than the logarithm.
At the end of the ring, where rq is large, the stripes are closer.</td></tr>
</table>
<br><br>
<b>The variants varDiv</b> (ln is the natural logarithm, decimals are dropped)
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>all black</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;10:&nbsp;</td><td>ln(rq) * FacDiv / 6</td></tr>
<tr><td>1:</td><td>all white</td>
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
"varDiv +1" and "varDiv -1" run in a circle from 0 to 18; a larger number typed in acts like 8. The
color number may have any size: at the end of the palette it starts again. Nothing is calculated
anew.)html")};

constexpr Hilfetext KonvEn{
    QT_TRANSLATE_NOOP("UI", "Selectable variant for the color calculation in the convergent range, "
                            "together with the convergence factor FacKonv"),
    QT_TRANSLATE_NOOP("UI", R"html(<b>The convergent range</b><br>
A pixel is called convergent here when its calculation runs up to maxIter without reaching ZahlAbbr:
the inside of the Mandelbrot set. Often it is simply painted black. Yet there, too, a last value rq
is left, and it tells where Z has come to rest:<br>
&nbsp;&nbsp;&nbsp;<b>n</b> = maxIter, the same for all these pixels<br>
&nbsp;&nbsp;&nbsp;<b>rq</b>: the last value (x*x + y*y at the start), mostly a small number<br>
Where Z tends to a fixed point, the color changes softly from pixel to pixel. In a cycle, rq depends
on which of its values came last when maxIter was reached. FacKonv stretches or squeezes the run of
colors.<br>
<br>
<b>What the variants do</b>
<table cellspacing="0" cellpadding="1">
<tr><td><b>2</b>&nbsp;&nbsp;</td><td>gives a single color, which you choose with FacKonv.</td></tr>
<tr><td><b>3 to 6</b>&nbsp;&nbsp;</td><td>take rq itself, one, five, ten and a hundred times. At the
start varKonv = 3 and FacKonv&nbsp;=&nbsp;100; the main body then has one color, since the first 33
colors of the palette are equal. With 6 or with FacKonv&nbsp;=&nbsp;2000 it shows rings.</td></tr>
<tr><td><b>7 to 10</b>&nbsp;&nbsp;</td><td>spread very small values of rq, as they arise close to
zero; their logarithms are negative, so the palette is run through backwards.</td></tr>
<tr><td><b>11</b>&nbsp;&nbsp;</td><td>divides by rq: the order is reversed, and the colors crowd
around zero.</td></tr>
<tr><td><b>12</b>&nbsp;&nbsp;</td><td>takes the square root: small differences close to zero become
larger.</td></tr>
</table>
<br><br>
<b>The variants varKonv</b> (ln is the natural logarithm, decimals are dropped)
<table cellspacing="0" cellpadding="1">
<tr><td>0:&nbsp;</td><td>all black</td>
<td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;7:&nbsp;</td><td>ln(rq) * FacKonv</td></tr>
<tr><td>1:</td><td>all white</td>
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
<b>Special values, to be typed in</b><br>
&nbsp;&nbsp;&nbsp;13 to 999 act like 4.<br>
&nbsp;&nbsp;&nbsp;1000 does not draw the inside; what was to be seen there stays.<br>
&nbsp;&nbsp;&nbsp;From 1001 on the inside gets one color, with color number = varKonv - 1000.<br>
<br>
<b>Cycles in color</b><br>
NrAbbruch 4 or 5 with a larger ZahlAbbr, say 2000, is especially rewarding: rq then tells whether a
cycle was found, and with 5 every cycle length gets a color of its own, most beautifully with cTab
24. Only the lengths 1 and 5 are easily confused there (places 258 and 284), and with palettes 2 and
3 length 7 looks like none at first: 681 * 100 leads to place 6, no cycle to place 0.<br>
"varKonv +1" and "varKonv -1" run in a circle from 0 to 12. Nothing is calculated anew.)html")};

} // namespace

// Filled in the order of Hilfethema.
const Hilfetabelle g_HilfeEnglisch = {ComplexNumbers, Fractals, SpecialFractals, Equations, Calc,
                                      Twin,           OrbitEn,  ColorTab,        DivEn,     KonvEn};
