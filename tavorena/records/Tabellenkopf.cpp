#include <tavorena/core/Text.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {
namespace {

struct Kopf {
  const char* Titel;
  std::vector<std::string> Zeilen;
};

const std::vector<std::string> Schnitt = {
    "       Rechts(m)      Hoch(m)    Abstand(m)/Tau(gon)       Pkt.Nr.  Bemerkung"};
const std::vector<std::string> Einschnitt = {
    "          Rechts          Hoch             Richtung/Tau    Pkt.Nr.  Bemerkung",
    "            (m)            (m)                   (gon)"};

const Kopf Köpfe[] = {
    {"VR 24.40",
     {"          Rechts         Hoch      Linie(m)    Seitw.(m)   Pkt.Nr.  Bemerkung",
      "             (m)          (m)      S-red(m)    A-red (m)"}},
    {"VR 08.40",
     {"          Rechts         Hoch      Richtung       Entf.   Pkt.Nr.  Bemerkung",
      "             (m)          (m)         (gon)         (m)"}},
    {"VR 22.10", {"       Rechts(m)      Hoch(m)     Entf.(m)    S(ger)(m)   Pkt.Nr.  Bemerkung"}},
    {"VR 22.00",
     {"          Rechts         Hoch        Linie       Seitw.   Pkt.Nr.  Bemerkung",
      "             (m)          (m)          (m)          (m)"}},
    {"VR 19.70",
     {"          Rechts         Hoch Richtung(gon)    Entf.(m)    Pkt.Nr. Bemerkung",
      "             (m)          (m)        WS (m)    Abst.(m)"}},
    {"VR 09.00", Schnitt},
    {"VR 09.40", Schnitt},
    {"VR 23.10", Schnitt},
    {"VR 09.50", {"       Rechts(m)       Hoch(m)    Radius(m)/Tau(gon)       Pkt.Nr.  Bemerkung"}},
    {"VR 65.00",
     {"          Rechts          Hoch    S(ger)(m)   S(gem)(m)    Pkt.Nr.  Bemerkung",
      "            (m)            (m)    Radius(m)      WS(m)",
      "                                               D-zul(m)"}},
    {"VR 10.00", Einschnitt},
    {"VR 11.00", Einschnitt},
    {"VR 19.10", {"      Rechts(m)    Hoch(m)         Beta(gon)   Entf.(m)    Pkt.Nr.  Bemerkung"}},
    {"VR NI.00", {"          Rück   Zwischen        Vor         v         Höhe    Pkt.Nr.  Bemerkung"}},
};

const std::vector<std::string> PolarMitHoehen = {
    "          Rechts        Hoch      Hoehe     Hz       Vk       sD         Pnr",
    "             (m)         (m)       (m)     (gon)    (gon)     (m)"};
const std::vector<std::string> PolarOhneHoehen = {
    "          Rechts        Hoch                Hz       Vk       sD         Pnr",
    "             (m)         (m)               (gon)    (gon)     (m)"};

std::vector<std::string> Vergleichskopf(const std::string& SollDatei) {
  return {"      Datei (Soll): " + SollDatei,
          "          Rechts          Hoch       Hoehe                 Pkt.Nr. Soll",
          "          Rechts          Hoch       Hoehe                 Pkt.Nr. Ist",
          "         dRechts         dHoch      dHoehe         fs              Soll-Ist",
          "            (m)            (m)        (m)             "};
}

}  // namespace

const char* const KopfPunkte =
    "       Rechts(m)       Hoch(m)                             Pkt.Nr.  Bemerkung";

const std::vector<std::string>& PolarKopf(bool MitHoehen) {
  return MitHoehen ? PolarMitHoehen : PolarOhneHoehen;
}

std::vector<std::string> Tabellenkopf(std::string_view Titel, bool MitHoehen, const std::string& SollDatei) {
  const std::string_view Schlüssel = TextTeil(Titel, 0, 8);
  if (Schlüssel == "Koordina" || Schlüssel == "Punktnum") return Vergleichskopf(SollDatei);
  if (Schlüssel == "Höhenübe") {
    return {"                                     Hoehe                 Pkt.Nr. Soll",
            "                                    dHoehe                         Soll-Ist"};
  }
  for (const Kopf& K : Köpfe) {
    if (Schlüssel != K.Titel) continue;
    std::vector<std::string> Zeilen = K.Zeilen;
    if (Schlüssel == "VR 19.70") {
      const auto& Polar = PolarKopf(MitHoehen);
      Zeilen.insert(Zeilen.end(), Polar.begin(), Polar.end());
    }
    return Zeilen;
  }
  return {};
}

}  // namespace tavorena
