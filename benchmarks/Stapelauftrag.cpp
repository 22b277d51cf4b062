#include "Stapelauftrag.h"

#include "Messdaten.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::messung {
namespace {

constexpr std::size_t Stapelpunkte = 15000;

}  // namespace

Stapelauftrag StapelauftragBilden() {
  const Stapelauftrag A{Messpfad("stapel.kor"), Messpfad("stapel.sta")};
  const Punktlisten& P = Punkte();
  std::ofstream Kor(A.Koordinaten, std::ios::binary), Sta(A.Stapel, std::ios::binary);
  std::string Zeile;
  for (std::size_t r = 0; r < Stapelpunkte; ++r) {
    KorZeileSchreiben(P.Pnr[r], P.Rechts[r], P.Hoch[r], P.Hoehe[r], P.Symbol[r], Zeile);
    Kor << Zeile << "\r\n";
  }
  Sta << "M  VR 24.40 Linienelemente\r\nPAN " << P.Pnr[0] << "\r\nPEN " << P.Pnr[1] << "\r\n";
  for (std::size_t i = 0; i < Stapelzeilen; ++i) Sta << "NR " << P.Pnr[i * 7919 % Stapelpunkte] << "\r\n";
  Sta << "E Ende\r\n";
  return A;
}

int AbspielenKonsole(const Stapelauftrag& A, const std::string& Protokoll) {
  setenv("TAVORENA_ORDNER", Messpfad("app").c_str(), 1);
  std::ostringstream Ausgabe, Meldungen;
  const Aufruf Ruf{A.Koordinaten, Protokoll, "", "", false, A.Stapel};
  const Rückgabe R = SitzungFühren(Stapelbefehl(), Ruf, {Ausgabe, Meldungen, ""});
  Haken = {};
  return R == Getan && Meldungen.str().empty() ? Stapel.Bilanz.Zeilen : -1;
}

}  // namespace tavorena::messung
