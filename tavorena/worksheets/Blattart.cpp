#include <algorithm>

#include <tavorena/worksheets/Blattart.h>
#include <tavorena/worksheets/TVAreaForm.h>
#include <tavorena/worksheets/TVAusgleichForm.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVDreiDForm.h>
#include <tavorena/worksheets/TVFStatForm.h>
#include <tavorena/worksheets/TVHelmertForm.h>
#include <tavorena/worksheets/TVIntbbForm.h>
#include <tavorena/worksheets/TVIntblForm.h>
#include <tavorena/worksheets/TVIntllForm.h>
#include <tavorena/worksheets/TVKmittForm.h>
#include <tavorena/worksheets/TVLinelForm.h>
#include <tavorena/worksheets/TVNivForm.h>
#include <tavorena/worksheets/TVOrthoForm.h>
#include <tavorena/worksheets/TVPolarForm.h>
#include <tavorena/worksheets/TVPolelForm.h>
#include <tavorena/worksheets/TVPolygonForm.h>
#include <tavorena/worksheets/TVRueckwaertsschnittForm.h>
#include <tavorena/worksheets/TVVorwaertsschnittForm.h>

namespace tavorena {
namespace {

template <typename Form>
std::unique_ptr<Formular> Neu(const Blattart& Art) {
  return std::make_unique<Form>(Art);
}

template <char Modus>
std::unique_ptr<Formular> NeuerAusgleich(const Blattart& Art) {
  return std::make_unique<TVAusgleichForm>(Art, Modus);
}

// One line a kind.
constexpr Blattart Arten[] = {
    {"TVDreiDForm",
     "DreiD",
     "3D Raumstrecke",
     "Tavorena 3D Raumstrecke [Stapel]",
     "Berechnung 3D Raumstrecke",
     {"3D RAUMSTRECKE"},
     "MenüBearbeiten3D(0)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    {"TVDreiDForm",
     "DreiD",
     "3D Mitte",
     "Tavorena 3D Mitte [Stapel]",
     "Berechnung 3D Mitte",
     {"3D MITTE"},
     "MenüBearbeiten3D(1)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    {"TVDreiDForm",
     "DreiD",
     "3D Schwerpunkt",
     "Tavorena 3D Schwerpunkt [Stapel]",
     "Berechnung 3D Schwerpunkt",
     {"3D SCHWERPUNKT"},
     "MenüBearbeiten3D(2)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    {"TVDreiDForm",
     "DreiD",
     "3D Lotabstand",
     "Tavorena 3D Lotabstand [Stapel]",
     "Berechnung 3D Lotabstand",
     {"3D LOTABSTAND"},
     "MenüBearbeiten3D(3)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    // The last spelling is the ß of a DOS file, seen through the code page of Windows.
    {"TVDreiDForm",
     "DreiD",
     "3D Kanalmeßstab",
     "Tavorena 3D Kanalmeßstab [Stapel]",
     "Berechnung 3D Kanalmeßstab",
     {"3D KANALMEßSTAB", "3D KANALMESSSTAB", "3D KANALMESSTAB", "3D KANALMESZSTAB", "3D KANALMEáSTAB"},
     "MenüBearbeiten3D(4)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    {"TVDreiDForm",
     "DreiD",
     "3D Winkel",
     "Tavorena 3D Winkel [Stapel]",
     "Berechnung 3D Winkel",
     {"3D WINKEL"},
     "MenüBearbeiten3D(5)",
     4220,
     "dreid.md",
     Neu<TVDreiDForm>},
    {"TVLinelForm",
     "Linel",
     "VR 24.40 Linienelemente",
     "Tavorena Linienelemente [Stapel]",
     "Berechnung Linienelemente",
     {"24.40", "LE"},
     "MenüKatasterLinel",
     4110,
     "linienelemente.md",
     Neu<TVLinelForm>},
    {"TVPolelForm",
     "Polel",
     "VR 08.40 Polarelemente",
     "Tavorena Polarelemente [Stapel]",
     "Berechnung Polarelemente",
     {"08.40", "8.40", "PE"},
     "MenüKatasterPolel",
     4120,
     "polarelemente.md",
     Neu<TVPolelForm>},
    {"TVDisForm",
     "Dis",
     "VR 22.10 Entfernungskontrolle",
     "Tavorena Entfernungskontrolle [Stapel]",
     "Berechnung Entfernungskontrolle",
     {"22.10", "EK"},
     "MenüKatasterDis",
     4130,
     "entfernungskontrolle.md",
     Neu<TVDisForm>},
    {"TVOrthoForm",
     "Ortho",
     "VR 22.00 Meßlinie",
     "Tavorena Meßlinie [Stapel]",
     "Berechnung Meßlinie",
     {"22.00", "ML"},
     "MenüKatasterOrtho",
     4140,
     "messlinie.md",
     Neu<TVOrthoForm>},
    {"TVPolarForm",
     "Polar",
     "VR 19.70 Polare Punkte",
     "Tavorena Polare Punkte [Stapel]",
     "Berechnung Polare Punkte",
     {"19.70", "PP"},
     "MenüKatasterPolar",
     4150,
     "polarpunkte.md",
     Neu<TVPolarForm>},
    {"TVKmittForm",
     "Kmitt",
     "VR 09.50 Kreismittelpunkt",
     "Tavorena Kreismittelpunkt [Stapel]",
     "Berechnung Kreismittelpunkt",
     {"09.50", "9.50", "KM"},
     "MenüKatasterKmitt",
     4190,
     "kreismittelpunkt.md",
     Neu<TVKmittForm>},
    {"TVIntllForm",
     "Intll",
     "VR 09.00 Geradenschnitt",
     "Tavorena Geradenschnitt [Stapel]",
     "Berechnung Geradenschnitt",
     {"09.00", "9.00", "GS"},
     "MenüKatasterIntll",
     4160,
     "geradenschnitt.md",
     Neu<TVIntllForm>},
    {"TVIntblForm",
     "Intbl",
     "VR 09.40 Schnitt Kreis / Gerade",
     "Tavorena Schnitt Kreis/Gerade [Stapel]",
     "Berechnung Schnitt Kreis / Gerade",
     {"09.40", "9.40", "KS"},
     "MenüKatasterIntbl",
     4170,
     "kreisgerade.md",
     Neu<TVIntblForm>},
    {"TVIntbbForm",
     "Intbb",
     "VR 23.10 Bogenschnitt",
     "Tavorena Schnitt Kreis/Gerade [Stapel]",  // the same words, on purpose
     "Berechnung Bogenschnitt",
     {"23.10", "BS"},
     "MenüKatasterIntbb",
     4180,
     "bogenschnitt.md",
     Neu<TVIntbbForm>},
    {"TVVorwaertsschnittForm",
     "Vorw",
     "VR 10.00 Vorwärtsschnitt",
     "Tavorena Vorwärtsschnitt [Stapel]",
     "Berechnung Vorwärtsschnitt",
     {"10.00", "VS"},
     "MenüKatasterVorw",
     4200,
     "vorwaertsschnitt.md",
     Neu<TVVorwaertsschnittForm>},
    {"TVRueckwaertsschnittForm",
     "Rueck",
     "VR 11.00 Rückwärtsschnitt",
     "Tavorena Rückwärtsschnitt [Stapel]",
     "Berechnung Rückwärtsschnitt",
     {"11.00", "RS"},
     "MenüKatasterRueck",
     4210,
     "rueckwaertsschnitt.md",
     Neu<TVRueckwaertsschnittForm>},
    {"TVFStatForm",
     "Fstat",
     "VR 19.50 Freie Stationierung",
     "Freie Stationierung [Stapel]",
     "Berechnung Freie Stationierung",
     {"19.50", "FS"},
     "MenüKatasterFStat",
     4230,
     "stationierung.md",
     Neu<TVFStatForm>},
    {"TVPolygonForm",
     "Polygon",
     "VR 19.10 Polygonzüge",
     "Tavorena Polygonzüge [Stapel]",
     "Berechnung Polygonzüge",
     {"19.10", "PY", "19.10(20)"},
     "MenüKatasterPolygon",
     4250,
     "polygonzug.md",
     Neu<TVPolygonForm>},
    {"TVHelmertForm",
     "Helmert",
     "VR 24.00 Helmert- Transformation",
     "Tavorena Helmert- Transformation [Stapel]",
     "Berechnung Transformation",
     {"24.00", "HT"},
     "MenüKatasterHelmert",
     4260,
     "transformation.md",
     Neu<TVHelmertForm>},
    {"TVHelmertForm",
     "Helmert",
     "VR 24.30 Affin- Transformation",
     "Tavorena Affin- Transformation [Stapel]",
     "Berechnung Transformation",
     {"24.30", "AT"},
     "",
     4260,
     "transformation.md",
     Neu<TVHelmertForm>},
    {"TVAreaForm",
     "Area",
     "VR 65.00 Flächenberechnung",
     "Tavorena Flächenberechnung [Stapel]",
     "Berechnung Fläche",
     {"65.00", "FB"},
     "MenüKatasterArea",
     4270,
     "flaeche.md",
     Neu<TVAreaForm>},
    {"TVAusgleichForm",
     "Ausgleich",
     "Ausgleichende Gerade",
     "Tavorena Ausgleichende Gerade [Stapel]",
     "Berechnung Ausgleichende Gerade",
     {},
     "MenüKatasterAusglGerade",
     4280,
     "ausgleichung.md",
     NeuerAusgleich<'G'>,
     "MenüBearbeitenAusgleichendeGerade"},
    {"TVAusgleichForm",
     "Ausgleich",
     "Ausgleichender Kreis",
     "Tavorena Ausgleichender Kreis [Stapel]",
     "Berechnung Ausgleichender Kreis",
     {},
     "MenüKatasterAusglKreis",
     4290,
     "ausgleichung.md",
     NeuerAusgleich<'K'>,
     "MenüBearbeitenAusgleichendeKreis"},
    {"TVNivForm",
     "Niv",
     "VR NI.00 Nivellement",
     "Tavorena Nivellement [Stapel]",
     "Berechnung Nivellement",
     {"NI.00", "NI"},
     "MenüFunktNivellement",
     6010,
     "nivellement.md",
     Neu<TVNivForm>},
};

template <typename Test>
const Blattart* Finde(Test Passt) {
  const auto* i = std::find_if(std::begin(Arten), std::end(Arten), Passt);
  return i != std::end(Arten) ? i : nullptr;
}

}  // namespace

std::span<const Blattart> Blattarten() { return Arten; }

const Blattart* BlattartVonKennung(std::string_view Kennung) {
  return Finde([&](const Blattart& B) {
    return std::any_of(B.Kennungen.begin(), B.Kennungen.end(),
                       [&](const char* K) { return K != nullptr && K == Kennung; });
  });
}

const Blattart* BlattartVonMenü(std::string_view Eintrag) {
  return Finde([&](const Blattart& B) {
    return B.Menü == Eintrag || (B.WeiteresMenü != nullptr && B.WeiteresMenü == Eintrag);
  });
}

}  // namespace tavorena
