#include "files/Speicherdialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

/// A version number or a date behind the last dot is no ending.
bool hatEndung(const QString& name) {
    static const QRegularExpression Endung(R"(\.\p{L}[\p{L}\p{N}]{0,7}$)");
    return Endung.match(name).hasMatch();
}

/// Qt's own dialog on every desktop: what a foreign one asks about a file cannot be changed.
class Speicherdialog : public QFileDialog {
  public:
    Speicherdialog(QWidget* eltern, const QString& titel, const QString& vorschlag,
                   const QString& filter, QString dateiendung)
        : QFileDialog(eltern, titel, vorschlag, filter), endung(std::move(dateiendung)) {
        setOption(DontUseNativeDialog);
        setAcceptMode(AcceptSave);
        selectFile(vorschlag);
    }

  protected:
    void accept() override {
        // With quotation marks the line may hold something else than one name.
        const QString name = selectedFiles().value(0);
        auto* zeile = findChild<QLineEdit*>("fileNameEdit");
        if (!zeile->text().isEmpty() && !hatEndung(name) && !QFileInfo(name).isDir()) {
            zeile->setText((zeile->text().contains('"') ? name : zeile->text()) + endung);
        }
        QFileDialog::accept();
    }

  private:
    QString endung;
};

} // namespace

QString speichernameErfragen(QWidget* eltern, const QString& titel, const QString& vorschlag,
                             const QString& filter, const QString& endung) {
    Speicherdialog dialog(eltern, titel, vorschlag, filter, endung);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
