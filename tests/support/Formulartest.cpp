#include "Formulartest.h"

namespace tavorena::test {

std::string Tippe(Formular& Form, const std::string& Name, const std::string& Text) {
  Form.FokusWechseln(Element(Form, Name));
  const auto Schreibe = [&](const std::string& Wort) {
    if (!Wort.empty()) Form.Tippen(dynamic_cast<Eingabeelement&>(*Form.Fokus()), Wort);
  };
  std::string Wort;
  for (const char z : Text) {
    if (z == '+' || (z == '-' && Text.size() == 1)) {
      Form.TasteDrücken(z == '+' ? Taste::Plus : Taste::Minus);
    } else if (z == '\n') {
      Schreibe(std::exchange(Wort, ""));
      Form.TasteDrücken(Taste::Return);
    } else {
      Wort += z;
    }
  }
  Schreibe(Wort);
  return Form.Fokus() != nullptr ? Form.Fokus()->Name : "";
}

std::string Drücke(Formular& Form, const std::string& Name) {
  Form.Klicken(Element<Knopf>(Form, Name));
  return Form.Fokus() != nullptr ? Form.Fokus()->Name : "";
}

Gitter& Gitterfeld(const Formular& Form) {
  for (const auto& S : Form.Steuerelemente()) {
    if (auto* G = dynamic_cast<Gitter*>(S.get())) return *G;
  }
  throw std::runtime_error("no grid in " + Form.FormName);
}

std::vector<std::string> Gitterzeile(const Gitter& G, int Zeile) {
  std::vector<std::string> Texte;
  for (int s = 0; s < std::ssize(G.Spalten); ++s) Texte.push_back(G.Inhalt(Zeile, s));
  return Texte;
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
