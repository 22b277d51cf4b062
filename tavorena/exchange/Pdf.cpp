#include <cairo-pdf.h>
#include <cmath>
#include <memory>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/System.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Pdf.h>

namespace tavorena {
namespace {

using Fläche = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Stift = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

cairo_status_t Anhängen(void* Ziel, const unsigned char* Bytes, unsigned int Anzahl) {
  static_cast<std::string*>(Ziel)->append(reinterpret_cast<const char*>(Bytes), Anzahl);
  return CAIRO_STATUS_SUCCESS;
}

// "2003-02-01T10:15:00", as the library takes it.
std::string Datum() {
  const Zeitpunkt t = AblaufPort().Jetzt();
  const auto Zwei = [](int Zahl) { return ZahlFeldNull(Zahl, 2); };
  return ZahlFeldNull(t.Jahr, 4) + "-" + Zwei(t.Monat) + "-" + Zwei(t.Tag) + "T" + Zwei(t.Stunde) + ":" +
         Zwei(t.Minute) + ":00";
}

// @return false: another font stands in its place, and no column would hold
bool SchriftWählen(cairo_t* Zeichnung, double Größe) {
  [[maybe_unused]] static const bool Mitgebracht = SchriftAnmelden("DejaVuSansMono.ttf");
  // Widths as they are in the font: those of a screen would be rounded to its pixels.
  cairo_font_options_t* Art = cairo_font_options_create();
  cairo_font_options_set_hint_style(Art, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(Art, CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(Zeichnung, Art);
  cairo_font_options_destroy(Art);
  cairo_select_font_face(Zeichnung, Druckschrift, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(Zeichnung, Größe);
  cairo_text_extents_t Schmal, Breit;
  cairo_text_extents(Zeichnung, "i", &Schmal);
  cairo_text_extents(Zeichnung, "│", &Breit);
  const double Soll = Zeichenvorschub * Größe;
  return std::fabs(Schmal.x_advance - Soll) < 0.02 && std::fabs(Breit.x_advance - Soll) < 0.02;
}

void SeiteZeichnen(cairo_t* Zeichnung, const std::vector<std::string>& Zeilen, double Rand) {
  double y = ErsteGrundlinie;
  for (const std::string& Zeile : Zeilen) {
    cairo_move_to(Zeichnung, Rand, y);
    cairo_show_text(Zeichnung, Zeile.c_str());
    y += Zeilenabstand;
  }
  cairo_show_page(Zeichnung);
}

// @return false: stopped
bool SeitenZeichnen(cairo_t* Zeichnung, const Druckseiten& Seiten) {
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  bool Gezeigt = false, Weiter = true;
  int Nummer = 0;
  for (const auto& Zeilen : Seiten.Seiten) {
    SeiteZeichnen(Zeichnung, Zeilen, Randzeichen * Zeichenvorschub * Seiten.Schrift);
    ++Nummer;
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen("Seite " + std::to_string(Nummer) + " von " + std::to_string(Seiten.Seiten.size()));
    Gezeigt = true;
    AblaufPort().EreignisseAbarbeiten();
    Weiter = std::exchange(KorStop, Laufwunsch::Weiter) != Laufwunsch::Stop;
    if (!Weiter) break;
  }
  if (Gezeigt) StatusHilfeSetzen("");
  return Weiter;
}

int PdfErzeugen(const Druckseiten& Seiten, const std::string& Titel, std::string& Bytes, std::string& Grund) {
  const Fläche Blätter(cairo_pdf_surface_create_for_stream(Anhängen, &Bytes, Blattbreite, Blatthöhe),
                       cairo_surface_destroy);
  // A file name can hold any bytes, a title can not.
  const std::string Lesbar = IstUtf8(Titel) ? Titel : AusWindows1252(Titel);
  cairo_pdf_surface_set_metadata(Blätter.get(), CAIRO_PDF_METADATA_TITLE, Lesbar.c_str());
  cairo_pdf_surface_set_metadata(Blätter.get(), CAIRO_PDF_METADATA_CREATE_DATE, Datum().c_str());
  const Stift Zeichnung(cairo_create(Blätter.get()), cairo_destroy);
  if (!SchriftWählen(Zeichnung.get(), Seiten.Schrift)) {
    Grund = std::string("die Schrift ") + Druckschrift + " fehlt";
    return -1;
  }
  if (!SeitenZeichnen(Zeichnung.get(), Seiten)) {
    Grund = "angehalten";
    return -2;
  }
  cairo_surface_finish(Blätter.get());
  if (cairo_status(Zeichnung.get()) == CAIRO_STATUS_SUCCESS &&
      cairo_surface_status(Blätter.get()) == CAIRO_STATUS_SUCCESS)
    return 0;
  Grund = "die Seiten lassen sich nicht umwandeln";
  return -1;
}

}  // namespace

int PdfSchreiben(const std::string& Name, const Druckseiten& Seiten, const std::string& Titel,
                 std::string* Grund) {
  std::string Bytes, Warum = "nichts zu drucken";
  int Ergebnis = Seiten.Seiten.empty() ? -1 : PdfErzeugen(Seiten, Titel, Bytes, Warum);
  if (Ergebnis == 0) Ergebnis = DateiErsetzen(Name, Bytes, &Warum);
  if (Ergebnis < 0 && Grund != nullptr) *Grund = std::move(Warum);
  return Ergebnis;
}

}  // namespace tavorena
