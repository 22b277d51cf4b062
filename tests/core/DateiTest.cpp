#include "Testhilfe.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <tavorena/core/Datei.h>

namespace tavorena::test {
namespace {

namespace fs = std::filesystem;

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

TEST_F(Datei, ErsetzenÄndertNurDenInhalt) {
  const std::string Verweis = Ordner.Pfad("verweis.kor");
  fs::permissions(Name, fs::perms{0600});
  fs::create_symlink(Name, Verweis);
  EXPECT_EQ(DateiErsetzen(Verweis, "neu"), 0);
  EXPECT_TRUE(Gleich(fs::is_symlink(Verweis), true, Inhalt(Name), "neu"));
  EXPECT_EQ(fs::status(Name).permissions(), fs::perms{0600});
}

}  // namespace
}  // namespace tavorena::test
