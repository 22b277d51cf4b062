#include "Testhilfe.h"

#include <csignal>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

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
  EXPECT_TRUE(Gleich(Systempfad("c:\\d\\a.kor"), "/d/a.kor", Systempfad("d\\a.kor"), "d/a.kor"));
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

// Runs Tun in a process of its own and gives its answer.
bool Abgetrennt(const std::function<bool()>& Tun) {
  const pid_t Kind = fork();
  if (Kind == 0) _exit(Tun() ? 0 : 1);
  int Status = -1;
  waitpid(Kind, &Status, 0);
  return Status == 0;
}

TEST_F(Datei, VolleScheibeLäßtDieAlteDateiGanz) {
  EXPECT_TRUE(Abgetrennt([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit Grenze{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &Grenze);
    const std::string Gross(5000, 'x');
    return DateiErsetzen(Name, Gross) == -1 && TextAnhängen(Name, Gross) == -1;
  }));
  EXPECT_EQ(Inhalt(Name), "alt");
  EXPECT_EQ(std::distance(fs::directory_iterator(Ordner.Pfad("")), {}), 1);  // no remains
}

TEST_F(Datei, NurLesbarerOrdnerLäßtDieAlteDateiGanz) {
  fs::permissions(Ordner.Pfad(""), fs::perms{0505});
  EXPECT_TRUE(Abgetrennt(
      [&] { return (geteuid() != 0 || seteuid(65534) == 0) && DateiErsetzen(Name, "neu") == -1; }));
  fs::permissions(Ordner.Pfad(""), fs::perms::owner_all);
  EXPECT_EQ(Inhalt(Name), "alt");
  EXPECT_EQ(DateiErsetzen(Ordner.Pfad(""), "x"), -1);  // a folder is no file
}

TEST_F(Datei, AbbruchZuJederZeitLäßtEineGanzeDatei) {
  const std::string A(300'000, 'a'), B(300'000, 'b');
  Schreibe(Name, A);
  for (int i = 0; i < 20; ++i) {
    const pid_t Kind = fork();
    if (Kind == 0) {
      for (int k = 0;; ++k) {
        if (DateiErsetzen(Name, k % 2 == 0 ? B : A) < 0) _exit(1);
      }
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2 + i));
    kill(Kind, SIGKILL);
    waitpid(Kind, nullptr, 0);
    const std::string Ist = Inhalt(Name);
    ASSERT_TRUE(Ist == A || Ist == B) << "size " << Ist.size();
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
  constexpr const char *Art = "keine gewöhnliche Datei", *Leere = "Verweis ins Leere";
  const Lage Fälle[] = {
      {"nothing", [](const std::string&) {}, nullptr, "", nullptr},
      {"folder", [](const std::string& O) { fs::create_directory(O + "ziel"); }, "ist ein Ordner",
       "ist ein Ordner", "ist ein Ordner"},
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

TEST_F(Datei, ErsetzenÄndertNurDenInhalt) {
  const std::string Verweis = Ordner.Pfad("verweis.kor");
  fs::permissions(Name, fs::perms{0640});
  fs::create_symlink(Name, Verweis);
  const bool Fremd = chown(Name.c_str(), 1234, 4321) == 0;  // root alone may give files away
  struct stat Vorher {
  }, Nachher{};
  stat(Name.c_str(), &Vorher);
  EXPECT_EQ(Fremd, Vorher.st_uid == 1234);
  EXPECT_EQ(DateiErsetzen(Verweis, "neu"), 0);
  stat(Name.c_str(), &Nachher);
  EXPECT_TRUE(Gleich(fs::is_symlink(Verweis), true, Inhalt(Name), "neu", Nachher.st_mode, Vorher.st_mode,
                     Nachher.st_uid, Vorher.st_uid, Nachher.st_gid, Vorher.st_gid));
}

TEST_F(Datei, NurEigeneAlteResteGehen) {
  const std::string Rest = Name + ".neu~AbCdEf", Frisch = Name + ".neu~GhIjKl",
                    Verweis = Name + ".neu~MnOpQr", Fremd = Name + ".neu~", Opfer = Ordner.Pfad("opfer");
  for (const std::string& D : {Rest, Frisch, Fremd, Opfer}) Schreibe(D, "x");
  fs::create_symlink(Opfer, Verweis);
  for (const std::string& D : {Rest, Fremd, Opfer})
    fs::last_write_time(D, fs::file_time_type::clock::now() - std::chrono::hours(25));
  EXPECT_EQ(DateiErsetzen(Name, "neu"), 0);
  EXPECT_FALSE(fs::exists(Rest));
  for (const std::string& D : {Frisch, Fremd, Verweis, Opfer}) EXPECT_EQ(Inhalt(D), "x") << D;
}

TEST_F(Datei, ZweiProgrammeSpeichernEineDatei) {
  const std::string A(20'000, 'a'), B(30'000, 'b');
  Schreibe(Name, A);
  const auto Speichern = [this](const std::string& Text) {
    for (int i = 0; i < 200; ++i) {
      const std::string Ist = Inhalt(Name);
      if (DateiErsetzen(Name, Text) < 0 || Ist.find_first_not_of(Ist.front()) != std::string::npos ||
          (Ist.size() != 20'000 && Ist.size() != 30'000))
        return false;
    }
    return true;
  };
  // Whoever goes on from what he read replaces it only while it stands.
  const auto Weiterschreiben = [this] {
    for (int i = 0; i < 100;) {
      const Dateistand Eben = DateistandVon(Name);
      if (DateiErsetzen(Name, Inhalt(Name) + "a", nullptr, &Eben) == 0) ++i;
    }
  };
  const pid_t Kind = fork();
  if (Kind == 0) _exit(Speichern(B) ? 0 : 1);
  EXPECT_TRUE(Speichern(A));
  int Status = -1;
  waitpid(Kind, &Status, 0);
  EXPECT_EQ(Status, 0);
  Schreibe(Name, "");
  const pid_t Zweites = fork();
  if (Zweites == 0) {
    Weiterschreiben();
    _exit(0);
  }
  Weiterschreiben();
  waitpid(Zweites, &Status, 0);
  EXPECT_EQ(Inhalt(Name).size(), 200);
}

TEST_F(Datei, AnhängenSiehtWasAndereTun) {
  const std::string Zweite = Ordner.Pfad("b.dru");
  const auto Wechsel = [&](const auto& Tun, const std::string& Soll) {
    EXPECT_TRUE(Gleich(TextAnhängen(Name, "1"), 0, TextAnhängen(Zweite, "1"), 0));
    Tun();
    EXPECT_EQ(TextAnhängen(Name, "ä"), 0);
    EXPECT_EQ(Inhalt(Name), Soll);
  };
  Wechsel([&] { Schreibe(Name, "f\xFCr"); }, "f\xFCr\xE4");        // written over
  Wechsel([&] { fs::rename(Zweite, Name); }, "11ä");               // another file in its place
  Wechsel([&] { EXPECT_EQ(DateiErsetzen(Name, "e"), 0); }, "eä");  // by this program itself
  Wechsel([&] { EXPECT_EQ(DateiLöschen(Name), 0); }, "ä");         // removed
  EXPECT_EQ(AnhängeSichern(), 0);
}

TEST_F(Datei, UnlesbaresWirdBenannt) {
  std::string Text, Grund;
  Schreibe(Name, "\xFF\xFEM\0"sv);
  EXPECT_TRUE(Gleich(TextdateiLesen(Name, Text, &Grund), -1, Grund, "ist in UTF-16 geschrieben"));
  fs::resize_file(Name, std::uintmax_t{1} << 40U);  // holes alone
  EXPECT_TRUE(Gleich(TextdateiLesen(Name, Text, &Grund), -1, Grund, "zu groß"));
}

}  // namespace
}  // namespace tavorena::test
