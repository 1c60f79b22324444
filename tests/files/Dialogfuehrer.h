#pragma once

#include "Testbasis.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Answers every modal dialog that opens while it lives and notes what it showed: file dialogs with
/// one file name, message boxes with Yes or OK.
class Dialogfuehrer {
  public:
    /// An empty name cancels. danach runs between the acceptance of the file dialog and its return.
    explicit Dialogfuehrer(QString name, std::function<void()> danach = {})
        : m_name(std::move(name)), m_danach(std::move(danach)) {
        QObject::connect(&m_uhr, &QTimer::timeout, &m_uhr, [this] { antworten(); });
        m_uhr.start(1);
    }

    /// Five entries a dialog: title, suggested name, filters, "save" or "open", class of the
    /// parent.
    QStringList dateidialoge;
    /// Four entries a box: title, text, buttons, "parent" or "no parent".
    QStringList meldungen;

  private:
    static constexpr int Geduld = 5000; ///< ticks until a name counts as refused

    void antworten() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            beantworten(*box);
        } else if (auto* datei = qobject_cast<QFileDialog*>(dialog)) {
            if (m_offen != datei) {
                m_offen = datei;
                m_takte = 0;
                auswaehlen(*datei);
            } else if (++m_takte == Geduld) {
                datei->reject();
                QFAIL("the file dialog refused the name");
            }
        }
    }

    void beantworten(QMessageBox& box) {
        if (auto* ja = box.button(QMessageBox::Yes)) { // "replace the file?"
            ja->click();
            return;
        }
        QString tasten;
        for (const QAbstractButton* taste : box.buttons()) {
            tasten += taste->text().remove('&');
        }
        meldungen << box.windowTitle() << box.text() << tasten
                  << (box.parentWidget() != nullptr ? "parent" : "no parent");
        box.accept();
    }

    void auswaehlen(QFileDialog& dialog) {
        auto* zeile = dialog.findChild<QLineEdit*>("fileNameEdit");
        dateidialoge << dialog.windowTitle() << zeile->text() << dialog.nameFilters().join(", ")
                     << (dialog.acceptMode() == QFileDialog::AcceptSave ? "save" : "open")
                     << dialog.parentWidget()->metaObject()->className();
        if (m_name.isEmpty()) {
            dialog.reject();
            return;
        }
        if (m_danach) {
            QObject::connect(&dialog, &QDialog::accepted, &dialog, m_danach);
        }
        zeile->setText(m_name);
        // Queued: the dialog may ask back, and this timer must tick for the answer.
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    }

    QString m_name;
    std::function<void()> m_danach;
    QTimer m_uhr;
    QPointer<QWidget> m_offen; // the next dialog may get the same address
    int m_takte = 0;
};
