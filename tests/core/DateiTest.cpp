#include "Testhilfe.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <tavorena/core/Datei.h>

namespace tavorena::test {
namespace {

TEST(Datei, NamenMitLaufwerkUndRueckstrich) {
  EXPECT_EQ(Systempfad("c:\\auftrag\\a.kor"), "/auftrag/a.kor");
  EXPECT_EQ(Systempfad("auftrag\\a.kor"), "auftrag/a.kor");
  const Dateiname D = DateinameZerlegen("c:\\auf.trag/flur.7.kor");
  EXPECT_EQ(D.Ordner + "|" + D.Grundname + "|" + D.Endung, "c:\\auf.trag/|flur.7|kor");
  EXPECT_EQ(DateinameZerlegen("/a.b/ohne").Endung, "");
}

TEST(Datei, Kodierungen) {
  EXPECT_TRUE(IstUtf8("Meßlinie äöü € \xF0\x9F\x93\x90 und noch mehr Text"));
  for (const char* Falsch :
       {"\xFC", "abcdefgh\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82"}) {
    EXPECT_FALSE(IstUtf8(Falsch)) << Falsch;
  }
  std::string Alle;
  for (int i = 1; i < 256; ++i) Alle += static_cast<char>(i);
  EXPECT_TRUE(IstUtf8(AusWindows1252(Alle)));
  EXPECT_EQ(NachWindows1252(AusWindows1252(Alle)), Alle);
  EXPECT_EQ(AusWindows1252("\x80\xDF"), "€ß");
  EXPECT_EQ(NachWindows1252("Ω"), "?");
}

TEST(Datei, AnhaengenBehaeltDieKodierung) {
  const Testordner Ordner;
  const std::string Alt = Ordner.Pfad("alt.dru"), Neu = Ordner.Pfad("neu.dru");
  Schreibe(Alt, "M\xFCller\r\n");
  for (const std::string& Name : {Alt, Neu, Alt, Neu}) EXPECT_EQ(TextAnhaengen(Name, "Höhe\r\n"), 0);
  EXPECT_EQ(Inhalt(Alt), "M\xFCller\r\nH\xF6he\r\nH\xF6he\r\n");
  EXPECT_EQ(Inhalt(Neu), "Höhe\r\nHöhe\r\n");
  EXPECT_EQ(TextAnhaengen(Ordner.Pfad("kein/ordner.dru"), "x"), -1);
}

TEST(Datei, ZeilenendenOhneVerlust) {
  struct Fall {
    const char* Name;
    std::string Text;
    std::vector<std::string> Zeilen;
  };
  const Fall Faelle[] = {
      {"usual", "a\r\nb\r\n", {"a", "b"}},
      {"unix", "a\n\nb", {"a", "", "b"}},
      {"old apple", "a\rb", {"a", "b"}},
      {"mixed: nothing is lost", "a\nb\r\nc\rd\n", {"a", "b", "c", "d"}},
      {"code 0 stays in the usual file", std::string("a\0b\r\nc", 6), {std::string("a\0b", 3), "c"}},
      {"code 0 ends a unix line", std::string("a\0b\nc", 5), {"a", "b", "c"}},
  };
  for (const Fall& f : Faelle) {
    std::vector<std::string> Ist;
    std::string_view Zeile;
    Zeilenleser Leser(f.Text);
    while (Leser.Naechste(Zeile)) Ist.emplace_back(Zeile);
    EXPECT_EQ(Ist, f.Zeilen) << f.Name;
  }
}

// Runs Tun in a process of its own and gives its exit code.
int Abgetrennt(const std::function<int()>& Tun) {
  const pid_t Kind = fork();
  if (Kind == 0) _exit(Tun());
  int Status = 0;
  waitpid(Kind, &Status, 0);
  return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

TEST(Datei, VolleScheibeLaesstDieAlteDateiGanz) {
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
  Schreibe(Name, "alt");
  const int Ergebnis = Abgetrennt([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit Grenze{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &Grenze);
    const std::string Gross(5000, 'x');
    return DateiErsetzen(Name, Gross) == -1 && TextAnhaengen(Name, Gross) == -1 ? 0 : 1;
  });
  EXPECT_EQ(Ergebnis, 0);
  EXPECT_EQ(Inhalt(Name), "alt");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Ordner.Pfad("")), {}), 1);  // no remains
}

TEST(Datei, NurLesbarerOrdner) {
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
  Schreibe(Name, "alt");
  std::filesystem::permissions(Ordner.Pfad(""),
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                                   std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
  const int Ergebnis = Abgetrennt([&] {
    if (geteuid() == 0 && seteuid(65534) != 0) return 2;
    return DateiErsetzen(Name, "neu") == -1 ? 0 : 1;
  });
  std::filesystem::permissions(Ordner.Pfad(""), std::filesystem::perms::owner_all);
  EXPECT_EQ(Ergebnis, 0);
  EXPECT_EQ(Inhalt(Name), "alt");
}

TEST(Datei, AbbruchZuJederZeitLaesstEineGanzeDatei) {
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
  const std::string A(300'000, 'a'), B(300'000, 'b');
  Schreibe(Name, A);
  for (int i = 0; i < 20; ++i) {
    const pid_t Kind = fork();
    if (Kind == 0) {
      for (;;) {
        DateiErsetzen(Name, B);
        DateiErsetzen(Name, A);
      }
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2 + i));
    kill(Kind, SIGKILL);
    waitpid(Kind, nullptr, 0);
    const std::string Ist = Inhalt(Name);
    ASSERT_TRUE(Ist == A || Ist == B) << "size " << Ist.size();
  }
}

TEST(Datei, VerweisUndRechteBleiben) {
  namespace fs = std::filesystem;
  const Testordner Ordner;
  const std::string Echt = Ordner.Pfad("echt.kor"), Verweis = Ordner.Pfad("verweis.kor");
  Schreibe(Echt, "alt");
  fs::permissions(Echt, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(Echt, Verweis);
  EXPECT_EQ(DateiErsetzen(Verweis, "neu"), 0);
  EXPECT_TRUE(fs::is_symlink(Verweis));
  EXPECT_EQ(Inhalt(Echt), "neu");
  EXPECT_EQ(fs::status(Echt).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(DateiErsetzen(Ordner.Pfad(""), "x"), -1);  // a folder is no file
}

}  // namespace
}  // namespace tavorena::test
