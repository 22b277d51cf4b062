#include <tavorena/rawdata/Messsatz.h>

namespace tavorena {

Messwert* MesswertVon(Messsatz& Satz, int Wort) {
  switch (Wort) {
    case 21:
      return &Satz.Hz;
    case 22:
      return &Satz.V;
    case 31:
      return &Satz.Strecke;
    case 32:
      return &Satz.Horizontal;
    case 33:
      return &Satz.Höhenunterschied;
    case 81:
      return &Satz.Rechts;
    case 82:
      return &Satz.Hoch;
    case 83:
      return &Satz.Höhe;
    case 84:
      return &Satz.StandRechts;
    case 85:
      return &Satz.StandHoch;
    case 86:
      return &Satz.StandHöhe;
    case 87:
      return &Satz.Reflektorhöhe;
    case 88:
      return &Satz.Instrumentenhöhe;
    default:
      return nullptr;
  }
}

const Messwert* MesswertVon(const Messsatz& Satz, int Wort) {
  return MesswertVon(const_cast<Messsatz&>(Satz), Wort);
}

void Messsatz::Leeren() {
  for (Messtext* T : {&Nummer, &Konstante, &Code}) {
    T->Da = false;
    T->Info = Messtext().Info;
    T->Text.clear();
  }
  Hz = V = Strecke = Horizontal = Höhenunterschied = {};
  Rechts = Hoch = Höhe = StandRechts = StandHoch = StandHöhe = Reflektorhöhe = Instrumentenhöhe = {};
}

void Codeblock::Leeren() {
  Nummer.clear();
  Wort1.clear();
  for (std::string& W : Werte) W.clear();
  Anzahl = 0;
}

}  // namespace tavorena
