#include <algorithm>
#include <array>
#include <string_view>

#include <tavorena/graphics/Abgriff.h>

namespace tavorena {
namespace {

// The forms that take points from the view.
constexpr std::array<std::string_view, 23> Formen{"tvausgleichform",
                                                  "tvdreidform",
                                                  "tvkernkoordinateneditor",
                                                  "tvberichform",
                                                  "tvpmittform",
                                                  "tvploeschform",
                                                  "tvpselectform",
                                                  "tvpdoppform",
                                                  "tveinzelkoreinform",
                                                  "tvlinelform",
                                                  "tvpolelform",
                                                  "tvdisform",
                                                  "tvorthoform",
                                                  "tvpolarform",
                                                  "tvintllform",
                                                  "tvintblform",
                                                  "tvintbbform",
                                                  "tvkmittform",
                                                  "tvareaform",
                                                  "tvfstatform",
                                                  "tvvorwaertsschnittform",
                                                  "tvrueckwaertsschnittform",
                                                  "tvpolygonform"};
constexpr std::array<std::string_view, 6> Endungen{"Pnr", "Pnr1", "Pnr2", "Pnr3", "Pnrvon", "Pnrbis"};

std::string Kleintext(std::string Text) {
  for (char& c : Text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return Text;
}

}  // namespace

bool NimmtAbgriffe(const Formular& Form) {
  return std::find(Formen.begin(), Formen.end(), Kleintext(Form.FormName)) != Formen.end();
}

bool NimmtAbgriff(const Formular& Form, const Steuerelement& S) {
  if (!NimmtAbgriffe(Form)) return false;
  const auto* E = dynamic_cast<const Eingabeelement*>(&S);
  if (E == nullptr || E->OhneAbgriff) return false;
  if (E->BeiAbgriff) return true;
  if (const auto* G = dynamic_cast<const Gitter*>(&S)) return G->IstPnr && !G->NurLesen && G->Zeilen() > 0;
  const std::string_view Name = std::string_view(S.Name).substr(0, S.Name.find('('));
  return dynamic_cast<const Feld*>(&S) != nullptr &&
         std::any_of(Endungen.begin(), Endungen.end(),
                     [&](std::string_view Endung) { return Name.ends_with(Endung); });
}

bool AbgriffNehmen(Formular& Form, const std::string& Pnr) {
  Steuerelement* const S = Form.Fokus();
  if (S == nullptr || !Formular::NimmtFokus(*S) || !NimmtAbgriff(Form, *S)) return false;
  auto& Ziel = dynamic_cast<Eingabeelement&>(*S);
  if (Ziel.BeiAbgriff) {
    Form.Ereignis([&] { Ziel.BeiAbgriff(Pnr); });
    return true;
  }
  if (auto* G = dynamic_cast<Gitter*>(S)) Form.ZelleWechseln(*G, G->Zeile, G->Nummernspalte());
  Form.Tippen(Ziel, Pnr);
  Form.TasteDrücken(Taste::Return);
  return true;
}

}  // namespace tavorena
