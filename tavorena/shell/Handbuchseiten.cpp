#include <tavorena/shell/Handbuchseiten.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

// From the first help number of a page on, up to the next row.
struct Seite {
  int Ab;
  const char* Datei;
};
constexpr Seite Seiten[] = {
    {0, "index.md"},
    {1000, "datei.md"},
    {1030, "bearbeiten.md"},
    {1035, "punktauswahl.md"},
    {1040, "austausch.md"},
    {1045, "rohdaten.md"},
    {1046, "austausch.md"},
    {1047, "csv.md"},
    {1048, "austausch.md"},
    {1060, "datei.md"},
    {1080, "stapel.md"},
    {1090, "protokoll.md"},
    {1100, "drucken.md"},
    {1110, "datei.md"},
    {1125, "startseite.md"},
    {1126, "viertelstunde.md"},
    {1130, "datei.md"},
    {2000, "bearbeiten.md"},
    {2010, "editor.md"},
    {2015, "edbs.md"},
    {2020, "tabelle.md"},
    {3000, "ansicht.md"},
    {3010, "punktlisten.md"},
    {3100, "grafik.md"},
    {3110, "dxf.md"},
    {3120, "grafikdruck.md"},
    {4000, "rechenblatt.md"},
    {4010, "editor.md"},
    {4020, "vergeben.md"},
    {4030, "loeschen.md"},
    {4040, "mittelbildung.md"},
    {4060, "loeschen.md"},
    {4070, "rechenblatt.md"},
    {4090, "theodolit.md"},
    {4100, "rechenblatt.md"},
    {5000, "index.md"},
    {5030, "m5.md"},
    {5040, "index.md"},
    {6040, "setzung.md"},
    {6050, "absteckung.md"},
    {6060, "funktionen.md"},
    {6070, "index.md"},
    {7000, "menuepunkte.md"},
    {7010, "umrechnen.md"},
    {7020, "index.md"},
    {8000, "index.md"},
    {8020, "optionen.md"},
    {8040, "index.md"},
};

}  // namespace

const char* Handbuchseite(int Hilfenummer) {
  const char* Datei = Seiten[0].Datei;
  for (const Seite& S : Seiten) {
    if (Hilfenummer >= S.Ab) Datei = S.Datei;
  }
  // A worksheet has a page of its own, for the ten numbers from its own one on.
  for (const Blattart& Art : Blattarten()) {
    if (Hilfenummer >= Art.Hilfenummer && Hilfenummer < Art.Hilfenummer + 10) Datei = Art.Seite;
  }
  return Datei;
}

}  // namespace tavorena
