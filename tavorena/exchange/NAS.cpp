#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <exception>
#include <expat.h>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/NAS.h>

namespace tavorena {

Nasnummer NasNummer = Nasnummer::Fragen;

namespace {

constexpr std::string_view Punktarten[] = {"AX_Grenzpunkt",
                                           "AX_Aufnahmepunkt",
                                           "AX_Sicherungspunkt",
                                           "AX_SonstigerVermessungspunkt",
                                           "AX_BesondererGebaeudepunkt",
                                           "AX_BesondererBauwerkspunkt",
                                           "AX_BesondererTopographischerPunkt"};
constexpr std::string_view Ortsarten[] = {"AX_PunktortTA", "AX_PunktortAU", "AX_PunktortAG"};

// ---- what is kept of a file ------------------------------------------------------------------------

struct Nasobjekt {
  std::string Kennung;  // punktkennung
  std::string Marke;
  std::uint64_t Zeile = 0;
};

struct Nasort {
  std::string Punkt;  // the gml:id of its point
  std::string Genauigkeit;
  int System = -1;  // of a plane place; -1: it has a height alone, or nothing of use
  bool Amtlich = false;
  double Ost = 0, Nord = 0, Höhe = 0;
  std::uint64_t Zeile = 0;
};

struct Nassystem {
  std::string Name;
  int Zone = 0;  // in front of the eastings; 0: none
  int Anzahl = 0;
};

// Objects by their gml:id; a later version takes the place of the one before it.
template <typename Objekt>
class Ablage {
 public:
  void Legen(const std::string& Id, Objekt Neues) {
    const auto [i, Frei] = Id.empty() ? std::pair(Stellen.end(), true) : Stellen.try_emplace(Id, Alle.size());
    if (Frei) {
      Alle.push_back(std::move(Neues));
    } else {
      Alle[i->second] = std::move(Neues);
    }
  }
  // -1: there is none
  [[nodiscard]] std::ptrdiff_t Stelle(const std::string& Id) const {
    const auto i = Stellen.find(Id);
    return i != Stellen.end() ? static_cast<std::ptrdiff_t>(i->second) : -1;
  }
  std::vector<Objekt> Alle;

 private:
  std::unordered_map<std::string, std::size_t> Stellen;
};

struct Nasinhalt {
  Ablage<Nasobjekt> Punkte;
  Ablage<Nasort> Orte;
  std::vector<Nassystem> Systeme;
  std::unordered_map<std::string, int> Systemnummern;

  int SystemNummer(std::string_view Name, double& Ost) {
    const int Zone = Ost >= 1e7 && Ost < 1e8 ? static_cast<int>(Ost / 1e6) : 0;
    Ost -= Zone * 1e6;
    const std::string Schlüssel = std::string(Name) + "/" + std::to_string(Zone);
    const auto [i, Neu] = Systemnummern.try_emplace(Schlüssel, static_cast<int>(Systeme.size()));
    if (Neu) Systeme.push_back({std::string(Name), Zone, 0});
    return i->second;
  }
};

// ---- from XML to objects ---------------------------------------------------------------------------

// The identifier of an object, without its prefix and, where it has one, the time of its version behind.
std::string_view Objektkennung(std::string_view Id) {
  constexpr std::string_view Vorspann = "urn:adv:oid:";
  if (Id.starts_with(Vorspann)) Id.remove_prefix(Vorspann.size());
  return Id.size() == 32 ? Id.substr(0, 16) : Id;
}

// The plane part of a name such as "urn:adv:crs:ETRS89_UTM32*DE_DHHN2016_NH"; "" for degrees and geocentric
// values.
std::string_view Lagesystem(std::string_view Name) {
  constexpr std::string_view Vorspann = "urn:adv:crs:";
  if (Name.starts_with(Vorspann)) Name.remove_prefix(Vorspann.size());
  Name = Name.substr(0, Name.find('*'));
  for (const std::string_view Keines : {"Lat-Lon", "X-Y-Z"}) {
    if (Name.find(Keines) != std::string_view::npos) return {};
  }
  return Name.empty() ? "ohne Namen" : Name;
}

std::string_view OhneVorsilbe(const char* Name) {
  const char* const Punkt = std::strrchr(Name, ':');
  return Punkt != nullptr ? Punkt + 1 : Name;
}

std::string_view Merkmalwert(const char* const* Merkmale, std::string_view Name) {
  for (; *Merkmale != nullptr; Merkmale += 2) {
    if (OhneVorsilbe(*Merkmale) == Name) return Merkmale[1];
  }
  return {};
}

std::string_view OhneRand(std::string_view Text) {
  constexpr const char* Leeres = " \t\r\n";
  const std::size_t Von = std::min(Text.find_first_not_of(Leeres), Text.size());
  return Text.substr(Von, Text.find_last_not_of(Leeres) + 1 - Von);
}

// What Expat tells, put together to points and places.
class Nassammler {
 public:
  explicit Nassammler(Nasinhalt& I) : Inhalt(I) {}

  // @return false: nested deeper than anything of this kind
  bool Beginnt(const char* Voll, const char* const* Merkmale, std::uint64_t Zeile) {
    const std::string_view Name = OhneVorsilbe(Voll);
    ++Tiefe;
    if (ObjektTiefe == 0) {
      ObjektBeginnt(Name, Merkmale, Zeile);
    } else if (FeldTiefe == 0) {
      FeldBeginnt(Name, Merkmale);
    }
    return Tiefe < 500;
  }

  void Liest(std::string_view Stück) {
    constexpr std::size_t Längstes = 256;  // nothing that is wanted comes near it
    if (FeldTiefe > 0 && Text.size() < Längstes) Text += Stück.substr(0, Längstes - Text.size());
  }

  void Endet() {
    if (Tiefe == FeldTiefe) FeldEndet();
    if (Tiefe == ObjektTiefe) ObjektEndet();
    --Tiefe;
  }

  // The end of the file is not the end of what it holds.
  [[nodiscard]] bool IstOffen() const { return Tiefe > 0; }

 private:
  void ObjektBeginnt(std::string_view Name, const char* const* Merkmale, std::uint64_t Zeile) {
    const bool Punkt = std::find(std::begin(Punktarten), std::end(Punktarten), Name) != std::end(Punktarten);
    IstOrt = !Punkt && std::find(std::begin(Ortsarten), std::end(Ortsarten), Name) != std::end(Ortsarten);
    if (!Punkt && !IstOrt) return;
    ObjektTiefe = Tiefe;
    Id = Objektkennung(Merkmalwert(Merkmale, "id"));
    Objekt = {};
    Ort = {};
    Objekt.Zeile = Ort.Zeile = Zeile;
    System.clear();
    Position.clear();
    Beendet = false;
  }

  void FeldBeginnt(std::string_view Name, const char* const* Merkmale) {
    if (IstOrt && (Name == "Point" || Name == "pos") && Position.empty()) {
      if (const std::string_view Neues = Merkmalwert(Merkmale, "srsName"); !Neues.empty()) System = Neues;
    }
    if (!Wichtig(Name)) return;
    FeldTiefe = Tiefe;
    Feld = Name;
    Text.clear();
    Verweis = Merkmalwert(Merkmale, "href");
  }

  [[nodiscard]] bool Wichtig(std::string_view Name) const {
    if (Name == "endet") return true;
    if (!IstOrt) return Name == "punktkennung" || Name == "abmarkung_Marke";
    return Name == "istTeilVon" || Name == "pos" || Name == "koordinatenstatus" ||
           Name == "genauigkeitsstufe";
  }

  void FeldEndet() {
    FeldTiefe = 0;
    const std::string_view Inneres = OhneRand(Text);
    // A value out of a list may be told by a link to it.
    const std::string_view Wert =
        Inneres.empty() ? std::string_view(Verweis).substr(Verweis.find_last_of("/:") + 1) : Inneres;
    if (Feld == "endet") Beendet = Beendet || !Inneres.empty();
    if (Feld == "punktkennung") Objekt.Kennung = Inneres;
    if (Feld == "abmarkung_Marke") Objekt.Marke = Wert;
    if (Feld == "istTeilVon" && Ort.Punkt.empty()) Ort.Punkt = Objektkennung(Verweis);
    if (Feld == "koordinatenstatus") Ort.Amtlich = Wert == "1000";
    if (Feld == "genauigkeitsstufe") Ort.Genauigkeit = Wert;
    if (Feld == "pos" && Position.empty()) Position = Inneres;
  }

  void ObjektEndet() {
    ObjektTiefe = 0;
    if (Beendet) return;
    if (!IstOrt) return Inhalt.Punkte.Legen(Id, std::move(Objekt));
    PositionLesen();
    Inhalt.Orte.Legen(Id, std::move(Ort));
  }

  void PositionLesen() {
    std::vector<double> Werte;
    std::replace_if(
        Position.begin(), Position.end(), [](char z) { return z == '\r' || z == '\n'; }, ' ');
    std::string_view Rest = Position;
    while (!TrimmenSicht(Rest).empty()) {
      const std::string_view Wort = Wortnehmen(Rest);
      if (!IstZahlwort(Wort) || Werte.size() == 3) return;
      Werte.push_back(ZahlAusText(Wort));
    }
    if (Werte.size() == 1 || Werte.size() == 3) Ort.Höhe = Werte.back();
    const std::string_view Lage = Lagesystem(System);
    if (Werte.size() < 2 || Lage.empty()) {
      if (Werte.size() == 3) Ort.Höhe = 0;  // above an ellipsoid, or no height at all
      return;
    }
    Ort.Ost = Werte[0];
    Ort.Nord = Werte[1];
    Ort.System = Inhalt.SystemNummer(Lage, Ort.Ost);
  }

  Nasinhalt& Inhalt;
  int Tiefe = 0, ObjektTiefe = 0, FeldTiefe = 0;  // 0: in none
  bool IstOrt = false, Beendet = false;
  std::string Id, System, Position, Text, Verweis, Feld;
  Nasobjekt Objekt;
  Nasort Ort;
};

// ---- the file --------------------------------------------------------------------------------------

enum class Nasende { Gut, Gestoppt, Abgerissen, Fehlerhaft, Unlesbar };

class Nasdatei {
 public:
  explicit Nasdatei(Nasinhalt& I) : Sammler(I) {
    if (!Parser) return;
    XML_SetUserData(Parser.get(), this);
    XML_SetElementHandler(
        Parser.get(),
        [](void* Ich, const char* Name, const char** Merkmale) {
          static_cast<Nasdatei*>(Ich)->Geschirmt([=](Nasdatei& D) {
            return D.Sammler.Beginnt(Name, Merkmale, XML_GetCurrentLineNumber(D.Parser.get()));
          });
        },
        [](void* Ich, const char*) {
          static_cast<Nasdatei*>(Ich)->Geschirmt([](Nasdatei& D) { return D.Sammler.Endet(), true; });
        });
    XML_SetCharacterDataHandler(Parser.get(), [](void* Ich, const char* Text, int Länge) {
      static_cast<Nasdatei*>(Ich)->Geschirmt([=](Nasdatei& D) {
        return D.Sammler.Liest({Text, static_cast<std::size_t>(Länge)}), true;
      });
    });
    XML_SetUnknownEncodingHandler(Parser.get(), Kodierung, nullptr);
  }

  Nasende Lesen(const std::string& Name, std::string* Grund) {
    const double Ganz = static_cast<double>(std::max<std::uintmax_t>(DateistandVon(Name).Länge, 1));
    Nasende Ende = Parser ? Nasende::Gut : Nasende::Unlesbar;
    const auto Nehmen = [&](std::string_view Stück) {
      Ende = Zerlegen(Stück);
      if (Ende == Nasende::Gut && Pause.Fällig() && Angehalten(Gelesen / Ganz)) Ende = Nasende::Gestoppt;
      return Ende == Nasende::Gut;
    };
    return Ende == Nasende::Gut && DateiStückweise(Name, Nehmen, Grund) < 0 ? Nasende::Unlesbar : Ende;
  }

  [[nodiscard]] std::uint64_t Zeile() const { return XML_GetCurrentLineNumber(Parser.get()); }

 private:
  Nasende Zerlegen(std::string_view Stück) {
    // What has no end for so long is no XML of anybody, and Expat would keep all of it.
    constexpr double Längstes = 4 << 20;  // [bytes]
    Gelesen += static_cast<double>(Stück.size());
    const XML_Status Stand =
        XML_Parse(Parser.get(), Stück.data(), static_cast<int>(Stück.size()), Stück.empty() ? 1 : 0);
    if (Stand == XML_STATUS_OK)
      return Gelesen - static_cast<double>(XML_GetCurrentByteIndex(Parser.get())) > Längstes
                 ? Nasende::Fehlerhaft
                 : Nasende::Gut;
    return Stück.empty() && Sammler.IstOffen() ? Nasende::Abgerissen : Nasende::Fehlerhaft;
  }

  static bool Angehalten(double Anteil) {
    StatusHilfeSetzen("ALKIS / NAS: " + std::to_string(static_cast<int>(std::min(Anteil, 1.0) * 100)) +
                      " % gelesen");
    AblaufPort().EreignisseAbarbeiten();
    return std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop;
  }

  // Nothing may be thrown through the functions of Expat.
  template <typename Tat>
  void Geschirmt(Tat Tun) {
    bool Weiter = false;
    try {
      Weiter = Tun(*this);
    } catch (const std::exception&) {  // no memory
    }
    if (!Weiter) XML_StopParser(Parser.get(), XML_FALSE);
  }

  // The code page that Expat does not know and that a German file may be in.
  static int Kodierung(void*, const char* Name, XML_Encoding* Seite) {
    if (Großtext(Name) != "WINDOWS-1252") return XML_STATUS_ERROR;
    for (int i = 0; i < 256; ++i) {
      const char Byte = static_cast<char>(i);
      const std::string Zeichen = AusWindows1252({&Byte, 1});
      const auto B = [&](std::size_t k) { return static_cast<unsigned char>(Zeichen[k]); };
      Seite->map[i] = Zeichen.size() == 1   ? B(0)
                      : Zeichen.size() == 2 ? (B(0) & 0x1F) << 6 | (B(1) & 0x3F)
                                            : (B(0) & 0x0F) << 12 | (B(1) & 0x3F) << 6 | (B(2) & 0x3F);
    }
    Seite->data = nullptr;
    Seite->convert = nullptr;
    Seite->release = nullptr;
    return XML_STATUS_OK;
  }

  std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> Parser{XML_ParserCreate(nullptr), XML_ParserFree};
  Nassammler Sammler;
  Atempause Pause{0.5};
  double Gelesen = 0;  // [bytes]
};

// ---- from objects to points ------------------------------------------------------------------------

// The places that a point has: the one of its coordinates and the one of a height alone; -1: none.
struct Nasplatz {
  std::ptrdiff_t Lage = -1, Höhe = -1;
};

class Nastabelle {
 public:
  Nastabelle(Nasinhalt& I, Lesebericht& Bericht) : Inhalt(I), B(Bericht) {}

  int Ausgeben(const Punktnehmer& Nehmen) {
    SystemWählen();
    PlätzeSuchen();
    PunkteWählen();
    bool Ganze = NasNummer == Nasnummer::Km2;
    const int Treffen = Ganze ? 0 : Zusammenfallende();
    if (Treffen > 0 && NasNummer == Nasnummer::Fragen && !GanzeFragen(Treffen, Ganze)) return -1;
    BerichtSchreiben(Ganze ? 0 : Treffen);
    for (const std::size_t i : Gewählte) {
      const Nasobjekt& P = Inhalt.Punkte.Alle[i];
      const Nasort& O = Ort(Plätze[i].Lage);
      const std::string Nummer = Ganze ? P.Kennung : KurzeNummer(P.Kennung);
      KorInfoSatz Info;
      Info.Punktart = KurzAusText(P.Marke);
      Info.Lagegenauigkeit = O.Genauigkeit;
      const double Höhe = O.Höhe != 0 || Plätze[i].Höhe < 0 ? O.Höhe : Ort(Plätze[i].Höhe).Höhe;
      if (!Nehmen({Nummer, O.Ost, O.Nord, Höhe, P.Marke, &Info})) break;
    }
    return 0;
  }

 private:
  [[nodiscard]] const Nasort& Ort(std::ptrdiff_t i) const {
    return Inhalt.Orte.Alle[static_cast<std::size_t>(i)];
  }

  // The system of most places, of several the first.
  void SystemWählen() {
    for (const Nasort& O : Inhalt.Orte.Alle) {
      if (O.System >= 0) ++Inhalt.Systeme[static_cast<std::size_t>(O.System)].Anzahl;
    }
    const auto Häufigstes =
        std::max_element(Inhalt.Systeme.begin(), Inhalt.Systeme.end(),
                         [](const Nassystem& A, const Nassystem& Z) { return A.Anzahl < Z.Anzahl; });
    if (Häufigstes != Inhalt.Systeme.end()) System = static_cast<int>(Häufigstes - Inhalt.Systeme.begin());
  }

  void PlätzeSuchen() {
    Plätze.resize(Inhalt.Punkte.Alle.size());
    for (std::size_t i = 0; i < Inhalt.Orte.Alle.size(); ++i) {
      const Nasort& O = Inhalt.Orte.Alle[i];
      const std::ptrdiff_t Punkt = Inhalt.Punkte.Stelle(O.Punkt);
      if (Punkt < 0) {
        ++OrteOhnePunkt;
        Übergehen(O.Zeile);
        continue;
      }
      Nasplatz& P = Plätze[static_cast<std::size_t>(Punkt)];
      if (O.System == System) Bevorzugen(P.Lage, i);
      if (O.System < 0 && O.Höhe != 0) Bevorzugen(P.Höhe, i);
    }
  }

  void Bevorzugen(std::ptrdiff_t& Platz, std::size_t Neuer) const {
    const auto i = static_cast<std::ptrdiff_t>(Neuer);
    if (Platz < 0 || (Ort(i).Amtlich && !Ort(Platz).Amtlich)) Platz = i;
  }

  void PunkteWählen() {
    for (std::size_t i = 0; i < Plätze.size(); ++i) {
      const Nasobjekt& P = Inhalt.Punkte.Alle[i];
      if (Plätze[i].Lage >= 0 && !P.Kennung.empty()) {
        Gewählte.push_back(i);
        continue;
      }
      ++(Plätze[i].Lage < 0 ? PunkteOhneOrt : PunkteOhneNummer);
      Übergehen(P.Zeile);
    }
  }

  // Kind and five digits of the fifteen; one that is not so long is a number as it stands.
  static std::string KurzeNummer(const std::string& Kennung) {
    if (ZeichenAnzahl(Kennung) < 15) return Kennung;
    const std::string_view Sechs = TextTeil(Kennung, 9, 6);
    const std::size_t Erste = Sechs.find_first_not_of('0');
    return Erste == std::string_view::npos ? "0" : std::string(Sechs.substr(Erste));
  }

  // How many points have the short number of another one.
  [[nodiscard]] int Zusammenfallende() const {
    std::unordered_map<std::string, int> Anzahl;
    for (const std::size_t i : Gewählte) ++Anzahl[KurzeNummer(Inhalt.Punkte.Alle[i].Kennung)];
    int Treffen = 0;
    for (const auto& [Nummer, n] : Anzahl) Treffen += n > 1 ? n : 0;
    return Treffen;
  }

  static bool GanzeFragen(int Treffen, bool& Ganze) {
    const int Antwort =
        FrageJaNeinAbbruch(std::to_string(Treffen) +
                               " Punkte haben die gleiche Punktnummer wie ein anderer Punkt der Datei.\n\n"
                               "Die ganze Punktkennung mit km² als Punktnummer nehmen ?",
                           KnopfAbbruch);
    Ganze = Antwort == KnopfJa;
    return Antwort == KnopfJa || Antwort == KnopfNein;
  }

  void Übergehen(std::uint64_t Zeile) {
    const int Nummer = static_cast<int>(std::min<std::uint64_t>(Zeile, 2'000'000'000));
    if (B.Übergangen++ == 0 || Nummer < B.ErsteÜbergangene) B.ErsteÜbergangene = Nummer;
  }

  void BerichtSchreiben(int Treffen) {
    const auto Dazu = [this](const std::string& Wort) { B.Zusatz += (B.Zusatz.empty() ? "" : ", ") + Wort; };
    if (System >= 0) {
      const Nassystem& S = Inhalt.Systeme[static_cast<std::size_t>(System)];
      Dazu("Lagesystem " + S.Name);
      if (S.Zone > 0) Dazu("Zonennummer " + std::to_string(S.Zone) + " von den Rechtswerten abgetrennt");
    }
    if (PunkteOhneOrt > 0) Dazu(Anzahltext(PunkteOhneOrt, "Punkt", "Punkte") + " ohne Ort darin");
    if (PunkteOhneNummer > 0) Dazu(Anzahltext(PunkteOhneNummer, "Punkt", "Punkte") + " ohne Punktkennung");
    if (OrteOhnePunkt > 0) Dazu(Anzahltext(OrteOhnePunkt, "Ort", "Orte") + " ohne Punkt");
    if (Treffen > 0) Dazu(std::to_string(Treffen) + " Punkte mit der Nummer eines anderen");
  }

  Nasinhalt& Inhalt;
  Lesebericht& B;
  int System = -1;
  std::vector<Nasplatz> Plätze;       // by point
  std::vector<std::size_t> Gewählte;  // points, in the order of the file
  int PunkteOhneOrt = 0, PunkteOhneNummer = 0, OrteOhnePunkt = 0;
};

int Lesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  Nasinhalt Inhalt;
  std::string Grund;
  {
    Nasdatei Datei(Inhalt);
    switch (Datei.Lesen(Quelle.Dateiname, &Grund)) {
      case Nasende::Gut:
        break;
      case Nasende::Gestoppt:
        B.Gestoppt = true;
        return 0;
      case Nasende::Abgerissen:
        DateiendeMeldung(Quelle.Dateiname);
        return -1;
      case Nasende::Fehlerhaft:
        FehlerMeldung("Format nicht erkannt");
        return -1;
      case Nasende::Unlesbar:
        KoordinatendateiFehlt(Quelle.Dateiname, Grund);
        return -1;
    }
  }
  return Nastabelle(Inhalt, B).Ausgeben(Nehmen);
}

}  // namespace

Formatzugang NasZugang() {
  Formatzugang F;
  F.Nummer = Punktformat::Nas;
  F.Lesen = Lesen;
  F.Was = Formatzugang::Zufuhr::Name;
  return F;
}

}  // namespace tavorena
