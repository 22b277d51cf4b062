#include <tavorena/core/Text.h>
#include <tavorena/worksheets/Messfeld.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

Messfeld::Messfeld(Rechenblatt& Blatt, const std::string& Rest, const char* Label, Platz Ort,
                   const char* Rahmen)
    : Eingabe((Blatt.BeschriftungAnlegen(Label, Ort, Rahmen),
               Blatt.ZahlenfeldAnlegen(Blatt.Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, Rahmen, 12))) {
  Eingabe.BeiVerlassen = [this] { return Nehmen(); };
}

bool Messfeld::Nehmen() {
  std::string Text = Trimmen(*Eingabe.Text);
  if (Text == Vorher) return true;
  double Neu = 0;
  if (!Text.empty() && !MesswertPrüfen(Text, Neu)) return false;
  Eingabe.Text = Vorher = Text;
  Gelesen = Neu;
  if (BeiWechsel) BeiWechsel();
  return true;
}

void Messfeld::Setzen(double Neu) {
  Gelesen = Neu;
  Eingabe.Text = Vorher = Messwerttext(Neu);
}

void Messfeld::Leeren() {
  Gelesen = 0;
  Eingabe.Text = Vorher = "";
  Eingabe.Fehlerhaft = false;
}

}  // namespace tavorena
