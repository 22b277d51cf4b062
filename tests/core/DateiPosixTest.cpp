// Files where other processes, users, limits and links take part.
#include "Testhilfe.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tavorena::test {
namespace {

// A file that holds "alt", alone in its folder.
class DateiPosix : public ::testing::Test {
 protected:
  DateiPosix() { Schreibe(Name, "alt"); }
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
};

// Runs Tun in a process of its own and gives its answer.
bool Abgetrennt(const std::function<bool()>& Tun) {
  const pid_t Kind = fork();
  if (Kind == 0) _exit(Tun() ? 0 : 1);
  int Status = -1;
  waitpid(Kind, &Status, 0);
  return Status == 0;
}

TEST_F(DateiPosix, VolleScheibeLäßtDieAlteDateiGanz) {
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

TEST_F(DateiPosix, NurLesbarerOrdnerLäßtDieAlteDateiGanz) {
  fs::permissions(Ordner.Pfad(""), fs::perms{0505});
  EXPECT_TRUE(Abgetrennt(
      [&] { return (geteuid() != 0 || seteuid(65534) == 0) && DateiErsetzen(Name, "neu") == -1; }));
  fs::permissions(Ordner.Pfad(""), fs::perms::owner_all);
  EXPECT_EQ(Inhalt(Name), "alt");
  EXPECT_EQ(DateiErsetzen(Ordner.Pfad(""), "x"), -1);  // a folder is no file
}

TEST_F(DateiPosix, AbbruchZuJederZeitLäßtEineGanzeDatei) {
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

TEST_F(DateiPosix, ErsetzenÄndertNurDenInhalt) {
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

TEST_F(DateiPosix, ZweiProgrammeSpeichernEineDatei) {
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

}  // namespace
}  // namespace tavorena::test
