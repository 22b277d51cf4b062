#include <utility>

#include <QPagedPaintDevice>
#include <QPainter>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Druckquelle.h>
#include <tavorena/desktop/Malflaeche.h>

namespace tavorena {

int BlätterMalen(QPagedPaintDevice& Auf, Blattbereich Welche,
                 const std::function<void(QPainter& Maler, int Blatt)>& Zeichnen) {
  QPainter Maler;
  if (!Maler.begin(&Auf)) return -1;
  const Beschäftigung Läuft;
  Atempause Pause(0.5);
  KorStop = Laufwunsch::Weiter;
  bool Gezeigt = false;
  const double Faktor = static_cast<double>(Auf.logicalDpiX()) / Auflösung;
  for (int Blatt = Welche.Von; Blatt <= Welche.Bis; ++Blatt) {
    if (Pause.Fällig()) {
      Gezeigt = true;
      StatusHilfeSetzen("Seite " + std::to_string(Blatt - Welche.Von + 1) + " von " +
                        std::to_string(Welche.Anzahl()));
      AblaufPort().EreignisseAbarbeiten();
      if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop) return -2;
    }
    if (Blatt > Welche.Von && !Auf.newPage()) return -1;
    Maler.save();
    Maler.scale(Faktor, Faktor);
    Zeichnen(Maler, Blatt);
    Maler.restore();
  }
  if (Gezeigt) StatusHilfeSetzen("");
  return Maler.end() ? 0 : -1;
}

}  // namespace tavorena
