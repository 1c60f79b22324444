#include "window/Zahleneingabe.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr int EinzugText = 2; ///< pixels that a line edit leaves before its text

/// The number that a text writes out, in the C locale; none when it is not one to the end. Beyond
/// the doubles it is infinite or 0.
std::optional<double> zahlAus(const QString& text) {
    static const QRegularExpression Zahl(R"(^\s*[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?\s*$)");
    return Zahl.match(text).hasMatch() ? std::optional(text.toDouble()) : std::nullopt;
}

/// Stands between a box's line edit and the box, as validator and event filter of both.
class Zahleneingabe : public QValidator {
  public:
    Zahleneingabe(QAbstractSpinBox& feld, QLineEdit& eingabe)
        : QValidator(&eingabe), box(feld), zeile(eingabe) {
        zeile.setValidator(this);
        zeile.installEventFilter(this);
        box.installEventFilter(this);
        // Comes before the box sees the text.
        connect(&zeile, &QLineEdit::textEdited, this, &Zahleneingabe::uebernehmen);
        connect(&box, &QAbstractSpinBox::editingFinished, this, [this] {
            setzen(wert()); // rounds to the decimals what the box took with an exponent
            zuletzt = std::numeric_limits<double>::quiet_NaN();
        });
    }

    /// Besides what the box allows: the beginning of an exponent, a number out of range and one
    /// with a separator too many, which is seen and counts for nothing. More decimals than the box
    /// has are refused, as by the box.
    State validate(QString& text, int& stelle) const override {
        static const QRegularExpression Tippbar(
            R"(^\s*[+-]?[\d.]*((?<=[\d.])[eE][+-]?[\d.]*)?\s*$)");
        static const QRegularExpression Dezimalbruch(R"(^\s*[+-]?\d*\.\d*\s*$)");
        text.replace(',', '.');
        if (!Tippbar.match(text).hasMatch()) {
            return Invalid;
        }
        const State urteil = box.validate(text, stelle);
        const bool zuGenau = qobject_cast<const QDoubleSpinBox*>(&box) != nullptr &&
                             Dezimalbruch.match(text).hasMatch() && inGrenzen(zahlAus(text));
        return urteil == Invalid && !zuGenau ? Intermediate : urteil;
    }

  protected:
    bool eventFilter(QObject* beobachtet, QEvent* ereignis) override {
        if (beobachtet == &zeile && ereignis->type() == QEvent::Paint) {
            ganzeZiffernZeigen();
        } else if (beobachtet == &box && ereignis->type() == QEvent::ToolTip) {
            // As the window's own, since a tip takes on the colours of a panel's style sheet.
            QWidget* fenster = box.window();
            QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(),
                               QString::number(wert(), 'g', QLocale::FloatingPointShortest),
                               fenster, QRect(box.mapTo(fenster, QPoint(0, 0)), box.size()));
            return true;
        }
        return QValidator::eventFilter(beobachtet, ereignis);
    }

  private:
    [[nodiscard]] double wert() const { return box.property("value").toDouble(); }
    [[nodiscard]] double grenze(const char* name) const { return box.property(name).toDouble(); }
    [[nodiscard]] bool inGrenzen(std::optional<double> zahl) const {
        return !zahl || (*zahl >= grenze("minimum") && *zahl <= grenze("maximum"));
    }

    /// The box's value; the box writes it into the line.
    void setzen(double neu) {
        box.setProperty("value", std::clamp(neu, grenze("minimum"), grenze("maximum")));
    }

    /// A number that the box alone would not read becomes its value; while there is none, the value
    /// is the one from before the input. The text stays as the user writes it.
    void uebernehmen(const QString& text) {
        if (wert() != zuletzt) { // not from this input
            vorher = wert();
        }
        std::optional<double> zahl = zahlAus(text);
        if (qobject_cast<const QDoubleSpinBox*>(&box) == nullptr && zahl &&
            *zahl != std::trunc(*zahl)) {
            zahl.reset();
        }
        QString gelesen = text;
        int stelle = 0;
        if (!zahl || box.validate(gelesen, stelle) != Acceptable) {
            const QSignalBlocker stumm(&zeile);
            const int cursor = zeile.cursorPosition();
            setzen(zahl.value_or(vorher));
            zeile.setText(text);
            zeile.setCursorPosition(cursor);
        }
        zuletzt = zahl && inGrenzen(zahl) ? *zahl : wert();
    }

    /// A number longer than its box, seen from its beginning, ends behind a whole digit.
    void ganzeZiffernZeigen() {
        QStyleOptionFrame rahmen;
        rahmen.initFrom(&zeile);
        rahmen.rect = zeile.contentsRect();
        const int platz =
            zeile.style()->subElementRect(QStyle::SE_LineEditContents, &rahmen, &zeile).width() -
            EinzugText;
        const QFontMetrics schrift(zeile.font());
        const QString text = zeile.displayText();
        int rest = 0;
        if (zeile.cursorPosition() == 0 && schrift.horizontalAdvance(text) > platz) {
            int laenge = 0;
            while (schrift.horizontalAdvance(text, laenge + 1) <= platz) {
                ++laenge;
            }
            rest = platz - schrift.horizontalAdvance(text, laenge);
        }
        if (zeile.textMargins().right() != rest) {
            zeile.setTextMargins(0, 0, rest, 0);
        }
    }

    QAbstractSpinBox& box;
    QLineEdit& zeile;
    double vorher = 0.0;                                       ///< value before the present input
    double zuletzt = std::numeric_limits<double>::quiet_NaN(); ///< value after its last change
};

/// Keeps the leading digits in view, of which a narrow box with 16 decimals shows but a few. Qt
/// selects the whole number after a step or a tab and leaves the cursor, and thus the view, at its
/// end.
void anfangZeigen(QLineEdit* zeile) {
    QObject::connect(zeile, &QLineEdit::selectionChanged, zeile, [zeile] {
        const int laenge = static_cast<int>(zeile->text().size());
        const bool gezogen = QApplication::mouseButtons() != Qt::NoButton && zeile->underMouse();
        if (!gezogen && zeile->cursorPosition() != 0 && zeile->selectionLength() == laenge) {
            zeile->setSelection(laenge, -laenge);
        }
    });
    QObject::connect(zeile, &QLineEdit::editingFinished, zeile, [zeile] { zeile->home(false); });
}

} // namespace

void zahleneingabeEinrichten(QAbstractSpinBox* box) {
    box->setLocale(QLocale::c());
    auto* zeile = box->findChild<QLineEdit*>();
    new Zahleneingabe(*box, *zeile);
    anfangZeigen(zeile);
}
