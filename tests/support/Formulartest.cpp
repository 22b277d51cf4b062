#include "Formulartest.h"

namespace tavorena::test {
Steuerelement& Feld(const Formular& Form, const std::string& Name) {
  Steuerelement* S = Form.Finde(Name);
  if (S == nullptr) throw std::runtime_error("no control " + Name + " in " + Form.FormName);
  return *S;
}

void Tippe(Formular& Form, const std::string& Name, const std::string& Text) {
  Steuerelement& S = Feld(Form, Name);
  Form.FokusWechseln(S);
  std::string Wort;
  for (const char z : Text) {
    if (z == '+' || (z == '-' && Text.size() == 1)) {
      Form.TasteDrücken(z == '+' ? Taste::Plus : Taste::Minus);
    } else if (z == '\n') {
      if (!Wort.empty()) Form.Tippen(*Form.Fokus(), Wort);
      Wort.clear();
      Form.TasteDrücken(Taste::Return);
    } else {
      Wort += z;
    }
  }
  if (!Wort.empty()) Form.Tippen(*Form.Fokus(), Wort);
}

void Drücke(Formular& Form, const std::string& Name) { Form.Klicken(Feld(Form, Name)); }

Gitter& Gitterfeld(const Formular& Form) {
  return dynamic_cast<Gitter&>(Feld(Form, Form.FormName.substr(2, 5) + "Gitter"));
}

std::function<void(Formular&)> Bediene(std::vector<Handgriff> Griffe) {
  return [Griffe = std::move(Griffe)](Formular& Form) {
    Form.Öffnen();
    for (const Handgriff& G : Griffe) {
      if (G.Text.empty()) {
        Drücke(Form, G.Name);
      } else {
        Tippe(Form, G.Name, G.Text);
      }
    }
    EXPECT_FALSE(Form.Offen()) << Form.FormName << " is still open";
  };
}

}  // namespace tavorena::test
