#include "Testhilfe.h"

#include <string_view>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <sys/sysmacros.h>
#endif

namespace tavorena::test {
namespace {

using namespace std::string_view_literals;

// A file that holds "alt", alone in its folder.
class Datei : public ::testing::Test {
 protected:
  Datei() { Schreibe(Name, "alt"); }
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
};

TEST_F(Datei, Systempfad) {
#ifdef _WIN32
  EXPECT_TRUE(Gleich(Systempfad("c:/d\\ä.kor"), Weg("c:\\d\\ä.kor"), Systempfad("d/a.kor"), Weg("d\\a.kor")));
#else
  EXPECT_TRUE(Gleich(Systempfad("c:\\d\\a.kor"), "/d/a.kor", Systempfad("d\\a.kor"), "d/a.kor"));
#endif
}

TEST_F(Datei, NameZerlegen) {
  const Dateiname D = DateinameZerlegen("c:\\auf.trag/flur.7.kor");
  EXPECT_TRUE(Gleich(D.Ordner, "c:\\auf.trag/", D.Grundname, "flur.7", D.Endung, "kor"));
  EXPECT_EQ(DateinameZerlegen("/a.b/ohne").Endung, "");
}

TEST_F(Datei, Kodierungen) {
  EXPECT_TRUE(IstUtf8("Meßlinie äöü € \xF0\x9F\x93\x90 und noch mehr Text"));
  for (const char* Falsch : {"\xFC", "abcdefgh\xC3", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80"})
    EXPECT_FALSE(IstUtf8(Falsch)) << Falsch;
  std::string Alle;
  for (int i = 1; i < 256; ++i) Alle += static_cast<char>(i);
  EXPECT_TRUE(IstUtf8(AusWindows1252(Alle)));
  EXPECT_EQ(NachWindows1252(AusWindows1252(Alle)), Alle);
  EXPECT_TRUE(Gleich(AusWindows1252("\x80\xDF"), "€ß", NachWindows1252("Ω"), "?"));
}

TEST_F(Datei, AnhängenBehältDieKodierung) {
  const std::string Alt = Ordner.Pfad("alt.dru"), Neu = Ordner.Pfad("neu.dru");
  Schreibe(Alt, "M\xFCller\r\n");
  for (const std::string& An : {Alt, Neu, Alt, Neu}) EXPECT_EQ(TextAnhängen(An, "Höhe\r\n"), 0);
  EXPECT_EQ(Inhalt(Alt), "M\xFCller\r\nH\xF6he\r\nH\xF6he\r\n");
  EXPECT_EQ(Inhalt(Neu), "Höhe\r\nHöhe\r\n");
  EXPECT_EQ(TextAnhängen(Ordner.Pfad("kein/ordner.dru"), "x"), -1);
}

TEST_F(Datei, ZeilenendenOhneVerlust) {
  // Mixed: nothing is lost. The code 0 ends a unix line and stays in the usual file.
  const std::pair<std::string, std::vector<std::string>> Fälle[] = {
      {"a\n\nb\r\nc\rd\n", {"a", "", "b", "c", "d"}},
      {{"a\0b\nc", 5}, {"a", "b", "c"}},
      {{"a\0b\r\nc", 6}, {{"a\0b", 3}, "c"}}};
  for (const auto& [Text, Soll] : Fälle) {
    std::vector<std::string> Ist;
    std::string_view Zeile;
    Zeilenleser Leser(Text);
    while (Leser.Nächste(Zeile)) Ist.emplace_back(Zeile);
    EXPECT_EQ(Ist, Soll);
  }
}

// How a file system may lie about a name.
struct Lage {
  const char* Name;
  std::function<void(const std::string& Ordner)> Tun;  // what stands under "ziel" beside "a.kor"
  const char* Ersetzt;                                 // the reason; nullptr: goes well
  const char* Gelesen;
  const char* Angehängt;
};

TEST_F(Datei, WasUnterEinemNamenStehenKann) {
  [[maybe_unused]] constexpr const char *Art = "keine gewöhnliche Datei", *Leere = "Verweis ins Leere";
  const Lage Fälle[] = {
      {"nothing", [](const std::string&) {}, nullptr, "", nullptr},
      {"folder", [](const std::string& O) { fs::create_directory(O + "ziel"); }, "ist ein Ordner",
       "ist ein Ordner", "ist ein Ordner"},
#ifndef _WIN32
      {"pipe", [](const std::string& O) { mkfifo((O + "ziel").c_str(), 0600); }, Art, Art, Art},
      {"device",
       [](const std::string& O) {  // as root one of its own: a fault must not cost the machine its own
         if (mknod((O + "ziel").c_str(), S_IFCHR | 0600, makedev(1, 3)) != 0)
           fs::create_symlink("/dev/null", O + "ziel");
       },
       Art, Art, Art},
      {"link", [](const std::string& O) { fs::create_symlink("a.kor", O + "ziel"); }, nullptr, nullptr,
       nullptr},
      {"dangling link", [](const std::string& O) { fs::create_symlink("fehlt", O + "ziel"); }, Leere, "",
       Leere},
      {"loop", [](const std::string& O) { fs::create_symlink("ziel", O + "ziel"); }, Leere, Leere, Leere},
#endif
      {"second name", [](const std::string& O) { fs::create_hard_link(O + "a.kor", O + "ziel"); }, nullptr,
       nullptr, nullptr},
      {"protected",
       [](const std::string& O) {
         Schreibe(O + "ziel", "alt");
         fs::permissions(O + "ziel", fs::perms{0444});
       },
       "schreibgeschützt", nullptr, "schreibgeschützt"}};
  for (const Lage& f : Fälle) {
    SCOPED_TRACE(f.Name);
    const Testordner Eigener;
    const std::string O = Eigener.Pfad(""), Ziel = O + "ziel";
    const auto Prüfe = [](const char* Soll, const auto& Tun) {
      std::string Grund;
      EXPECT_EQ(Tun(Grund), Soll == nullptr ? 0 : -1);
      EXPECT_EQ(Grund, Soll == nullptr ? "" : Soll);
    };
    Schreibe(O + "a.kor", "alt");
    f.Tun(O);
    const auto Art0 = fs::symlink_status(Ziel).type();
    std::string Text;
    Prüfe(f.Gelesen, [&](std::string& G) { return DateiLesen(Ziel, Text, &G); });
    Prüfe(f.Ersetzt, [&](std::string& G) { return DateiErsetzen(Ziel, "neuer Inhalt", &G); });
    Prüfe(f.Angehängt, [&](std::string& G) { return TextAnhängen(Ziel, "+", &G); });
    if (f.Ersetzt == nullptr) {
      EXPECT_EQ(Inhalt(Ziel), "neuer Inhalt+");
    } else {
      EXPECT_EQ(fs::symlink_status(Ziel).type(), Art0);
    }
    // Both names of a linked file hold the same, and nobody wrote where a link leads nowhere.
    const bool Verbunden = f.Ersetzt == nullptr && fs::equivalent(Ziel, O + "a.kor");
    EXPECT_EQ(Inhalt(O + "a.kor"), Verbunden ? "neuer Inhalt+" : "alt");
    EXPECT_FALSE(fs::exists(O + "fehlt"));
    EXPECT_LE(std::distance(fs::directory_iterator(O), {}), 2);  // no remains
  }
}

TEST_F(Datei, NurEigeneAlteResteGehen) {
  const std::string Rest = Name + ".neu~AbCdEf", Frisch = Name + ".neu~GhIjKl",
                    Verweis = Name + ".neu~MnOpQr", Fremd = Name + ".neu~", Opfer = Ordner.Pfad("opfer");
  for (const std::string& D : {Rest, Frisch, Fremd, Opfer}) Schreibe(D, "x");
#ifdef _WIN32
  Schreibe(Verweis, "x");  // who may make links there is no common matter
#else
  fs::create_symlink(Opfer, Verweis);
#endif
  for (const std::string& D : {Rest, Fremd, Opfer})
    fs::last_write_time(D, fs::file_time_type::clock::now() - std::chrono::hours(25));
  EXPECT_EQ(DateiErsetzen(Name, "neu"), 0);
  EXPECT_FALSE(fs::exists(Rest));
  for (const std::string& D : {Frisch, Fremd, Verweis, Opfer}) EXPECT_EQ(Inhalt(D), "x") << D;
}

TEST_F(Datei, AnhängenSiehtWasAndereTun) {
  const std::string Zweite = Ordner.Pfad("b.dru");
  const auto Wechsel = [&](const auto& Tun, const std::string& Soll) {
    EXPECT_TRUE(Gleich(TextAnhängen(Name, "1"), 0, TextAnhängen(Zweite, "1"), 0));
    Tun();
    EXPECT_EQ(TextAnhängen(Name, "ä"), 0);
    EXPECT_EQ(Inhalt(Name), Soll);
  };
  Wechsel([&] { Schreibe(Name, "f\xFCr"); }, "f\xFCr\xE4");  // written over
  // another file in its place
#ifdef _WIN32
  const std::string Neue = Ordner.Pfad("neue"), Alte = Ordner.Pfad("alte");
  Schreibe(Neue, "11");
  Wechsel(
      [&] {  // open files are put aside, but put in the place of none
        ReplaceFileW(Weg(Name).c_str(), Weg(Neue).c_str(), Weg(Alte).c_str(), 0, nullptr, nullptr);
      },
      "11ä");
#else
  Wechsel([&] { fs::rename(Zweite, Name); }, "11ä");
#endif
  Wechsel([&] { EXPECT_EQ(DateiErsetzen(Name, "e"), 0); }, "eä");  // by this program itself
  Wechsel([&] { EXPECT_EQ(DateiLöschen(Name), 0); }, "ä");         // removed
  EXPECT_EQ(AnhängeSichern(), 0);
}

TEST_F(Datei, UnlesbaresWirdBenannt) {
  std::string Text, Grund;
  Schreibe(Name, "\xFF\xFEM\0"sv);
  EXPECT_TRUE(Gleich(TextdateiLesen(Name, Text, &Grund), -1, Grund, "ist in UTF-16 geschrieben"));
#ifndef _WIN32
  fs::resize_file(Name, std::uintmax_t{1} << 40U);  // holes alone
  EXPECT_TRUE(Gleich(TextdateiLesen(Name, Text, &Grund), -1, Grund, "zu groß"));
#endif
}

}  // namespace
}  // namespace tavorena::test
