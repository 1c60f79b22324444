#pragma once

#include <QElapsedTimer>
#include <QGuiApplication>

/// Shows the wait cursor over the whole application while a long computation lasts. Lives as long
/// as the computation, which asks from time to time; leaves the cursor as it was, also when an
/// exception ends it.
class Wartezeiger {
  public:
    Wartezeiger() { uhr.start(); }
    ~Wartezeiger() {
        if (gesetzt) {
            QGuiApplication::restoreOverrideCursor();
        }
    }
    Wartezeiger(const Wartezeiger&) = delete;
    Wartezeiger& operator=(const Wartezeiger&) = delete;
    Wartezeiger(Wartezeiger&&) = delete;
    Wartezeiger& operator=(Wartezeiger&&) = delete;

    /// Sets the wait cursor once the computation has taken long enough to be felt.
    void nachsehen() {
        if (!gesetzt && uhr.hasExpired(Geduld)) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            gesetzt = true;
        }
    }

  private:
    static constexpr qint64 Geduld = 250; ///< ms

    QElapsedTimer uhr;
    bool gesetzt = false;
};
