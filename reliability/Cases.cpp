#include "reliability/Cases.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>

#include "reliability/Child.h"

namespace velmar::reliability {
namespace {

namespace fs = std::filesystem;

using Complaints = std::vector<std::string>;

constexpr const char* kSkipped = "skipped";

// The greatest sizes that are tried, in KB: for all files of an export, and for its workbook alone.
constexpr long kMost = 260;
constexpr long kMostForTarget = 24;

void Add(Findings& findings, const std::string& where, const Complaints& complaints) {
  if (complaints == Complaints{kSkipped}) {
    findings.skipped.push_back(where);
    return;
  }
  ++findings.cases;
  for (const std::string& complaint : complaints) findings.complaints.push_back(where + ": " + complaint);
}

/// A case for each size from 0 to so many KB.
void AddSizes(Findings& findings, const std::string& what, long most, long step,
              const std::function<Complaints(std::uintmax_t bytes)>& work) {
  for (long kilobytes = 0; kilobytes <= most; kilobytes += step) {
    Add(findings, what + " of " + std::to_string(kilobytes) + " KB",
        InChild([&] { return work(static_cast<std::uintmax_t>(kilobytes) * 1024); }));
  }
}

void Append(Complaints& complaints, const Complaints& more) {
  complaints.insert(complaints.end(), more.begin(), more.end());
}

/// What the user is told names the place, and no success unless the workbook is all there.
Complaints ComplaintsOfText(const Scenario& scenario, const Seen& seen, const std::string& target,
                            const std::string& place) {
  Complaints complaints;
  if (seen.success) {
    if (!scenario.IsComplete(target)) complaints.push_back("success is told of a wrong workbook");
  } else if (!seen.Told(place)) {
    complaints.push_back("the place " + place + " is not told: " + seen.Text());
  }
  return complaints;
}

/// Exports with files limited to so many bytes, then without the limit.
Complaints WithLimit(const Scenario& scenario, const Office& original, rlim_t bytes) {
  Office office(original);
  scenario.Prepare(office);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlim_t before = std::exchange(limit.rlim_cur, bytes);
  std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &limit);
  Faults faults(Scenario::Target(office));
  Seen seen;
  {
    const OperationObserver::Scope scope(faults);
    seen = scenario.Run(office);
  }
  limit.rlim_cur = before;
  setrlimit(RLIMIT_FSIZE, &limit);
  Complaints complaints = scenario.Complaints(office, seen, faults);
  Append(complaints, ComplaintsOfText(scenario, seen, Scenario::Target(office), office.Folder()));
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

bool MountSmall(const std::string& folder, long kilobytes) {
  const std::string options = "size=" + std::to_string(kilobytes) + "k";
  return mount("velmar", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

/// A file that takes up all but so many bytes of a file system; it goes at the end.
class Ballast {
 public:
  Ballast(const std::string& folder, std::uintmax_t leave) : path_(folder + "/lleno.bin") {
    const std::uintmax_t free = fs::space(folder).available;
    std::ofstream(path_, std::ios::binary) << std::string(free > leave ? free - leave : 0, 'x');
  }
  Ballast(const Ballast&) = delete;
  Ballast& operator=(const Ballast&) = delete;
  ~Ballast() { fs::remove(path_); }

 private:
  std::string path_;
};

/// All on one small disk with so many bytes free, then with room enough.
Complaints OnSmallDisk(const Scenario& scenario, const Office& original, std::uintmax_t bytes) {
  const std::string disk = MakeFolder();
  if (!EnterOwnNamespace() || !MountSmall(disk, 64L * 1024)) {
    fs::remove(disk);
    return {kSkipped};
  }
  Complaints complaints;
  {
    Office office(original, disk);
    scenario.Prepare(office);
    Faults faults(Scenario::Target(office));
    Seen seen;
    {
      const Ballast ballast(disk, bytes);
      const OperationObserver::Scope scope(faults);
      seen = scenario.Run(office);
      complaints = scenario.Complaints(office, seen, faults);
    }
    Append(complaints, ComplaintsOfText(scenario, seen, Scenario::Target(office), office.Folder()));
    Append(complaints, scenario.ComplaintsOfNextRun(office));
  }
  umount(disk.c_str());
  fs::remove(disk);
  return complaints;
}

/// Only the target on a full disk.
Complaints TargetOnSmallDisk(const Scenario& scenario, const Office& original, std::uintmax_t bytes) {
  const std::string disk = MakeFolder();
  if (!EnterOwnNamespace() || !MountSmall(disk, 1024)) {
    fs::remove(disk);
    return {kSkipped};
  }
  const std::string target = disk + "/Salida.xls";
  Complaints complaints;
  {
    const Office office(original);
    Seen seen;
    {
      const Ballast ballast(disk, bytes);
      seen = scenario.RunTo(office, target);
    }
    complaints = ComplaintsOfText(scenario, seen, target, target);
    if (!seen.success && !seen.Told("no queda espacio")) complaints.push_back("no reason: " + seen.Text());
    if (!seen.success && fs::exists(target) && !seen.Told("está incompleto"))
      complaints.push_back("a half workbook is left without a word");
    Append(complaints, scenario.ComplaintsOfData(office));
    if (!scenario.RunTo(office, target).success) complaints.push_back("the next run fails");
  }
  umount(disk.c_str());
  fs::remove(disk);
  return complaints;
}

bool MakeReadOnly(const std::string& folder) {
  return mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
         mount(nullptr, folder.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

/// The run is refused or fails with a text that holds all these pieces, and all files stay as they were.
Complaints ComplaintsOfRefusal(const Seen& seen, const std::vector<std::string>& pieces) {
  Complaints complaints;
  if (seen.success) complaints.push_back("success is told");
  for (const std::string& piece : pieces) {
    if (!seen.Told(piece)) complaints.push_back("\"" + piece + "\" is not told: " + seen.Text());
  }
  return complaints;
}

/// As an office is that has exported before: with the catalogue in its main database.
void PutUsual(const Scenario& scenario, const Office& office) {
  scenario.Run(office);
  Scenario::PutOldTarget(office);
}

Complaints ReadOnlyWorkFolder(const Scenario& scenario, const Office& original) {
  Office office(original);
  scenario.Prepare(office);
  PutUsual(scenario, office);
  const Office elsewhere(original);
  const std::string target = elsewhere.Path("Otra.xls");
  std::ofstream(target) << "old";
  if (!EnterOwnNamespace() || !MakeReadOnly(office.Folder())) return {kSkipped};
  Complaints complaints =
      ComplaintsOfRefusal(scenario.RunTo(office, target), {office.Folder(), "sólo lectura"});
  if (fs::file_size(target) != 3) complaints.push_back("the old target has changed");
  umount(office.Folder().c_str());
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

Complaints ReadOnlyTargetFolder(const Scenario& scenario, const Office& original, bool exists) {
  const Office office(original);
  const std::string folder = MakeFolder();
  const std::string target = folder + "/Salida.xls";
  if (exists) std::ofstream(target) << "old";
  Complaints complaints;
  if (!EnterOwnNamespace() || !MakeReadOnly(folder)) {
    complaints = {kSkipped};
  } else {
    complaints = ComplaintsOfRefusal(scenario.RunTo(office, target), {target, "permiso"});
    if (fs::exists(target) != exists) complaints.push_back("the target has come or gone");
    Append(complaints, scenario.ComplaintsOfData(office));
    umount(folder.c_str());
  }
  fs::remove_all(folder);
  return complaints;
}

/// The office's folder and databases without write permission, for a user who is not the superuser.
Complaints WithoutPermission(const Scenario& scenario, const Office& original) {
  constexpr uid_t kNobody = 65534;
  if (getuid() != 0) return {kSkipped};
  Office office(original);
  scenario.Prepare(office);
  PutUsual(scenario, office);
  fs::permissions(office.Folder(), fs::perms(0555));
  if (setresuid(kNobody, kNobody, 0) != 0) return {kSkipped};
  Complaints complaints = ComplaintsOfRefusal(scenario.Run(office), {office.Folder(), "permiso"});
  if (setresuid(0, 0, 0) != 0) return {"the superuser's rights are lost"};
  fs::permissions(office.Folder(), fs::perms(0755));
  if (!scenario.IsOldTarget(office)) complaints.push_back("the old target has changed");
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

/// `arrange` takes hold of the target; what it gives holds on until it is called.
Complaints TargetInUse(const Scenario& scenario, const Office& original,
                       const std::function<std::function<void()>(const Office&)>& arrange) {
  Office office(original);
  scenario.Prepare(office);
  const std::function<void()> release = arrange(office);
  Complaints complaints =
      ComplaintsOfRefusal(scenario.Run(office), {Scenario::Target(office), "otro programa", "otro nombre"});
  if (!scenario.IsOldTarget(office)) complaints.push_back("the old target has changed");
  release();
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

std::function<void()> LockWhole(const Office& office) {
  const int file = open(Scenario::Target(office).c_str(), O_RDWR | O_CLOEXEC);
  flock(file, LOCK_EX);
  return [file] { close(file); };
}

std::function<void()> LockRecord(const Office& office) {
  // Such a lock is the process's own affair, so another process has to hold it.
  auto holder = std::make_shared<Child>([&office](Child& self) {
    const int file = open(Scenario::Target(office).c_str(), O_RDWR | O_CLOEXEC);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    fcntl(file, F_SETLK, &lock);
    self.Pause();
    return Complaints{};
  });
  holder->WaitForPause();
  return [holder] {
    holder->GoOn();
    holder->Finish();
  };
}

std::function<void()> OwnersFile(const Office& office) {
  const std::string path = office.Path(".~lock.Salida.xls#");
  std::ofstream(path) << ",ana,equipo,22.11.2026 10:00,file:///home/ana/.config/libreoffice/4;";
  return [path] { fs::remove(path); };
}

/// In a folder of this name every export works, or is refused with a text that holds the piece.
Complaints InFolder(const Scenario& scenario, const Office& original, const std::string& name,
                    const std::string& refusal) {
  const std::string parent = MakeFolder() + "/" + name;
  fs::create_directories(parent);
  Complaints complaints;
  {
    Office office(original, parent);
    scenario.Prepare(office);
    const Office elsewhere(original);
    const std::string target = elsewhere.Path("Otra.xls");
    const Seen seen = scenario.RunTo(office, target);
    if (refusal.empty()) {
      if (!seen.success || !scenario.IsComplete(target)) complaints.push_back("fails: " + seen.Text());
    } else {
      complaints = ComplaintsOfRefusal(seen, {refusal, office.Folder()});
      if (!scenario.IsOldTarget(office)) complaints.push_back("the old target has changed");
    }
    Append(complaints, scenario.ComplaintsOfData(office));
  }
  fs::remove_all(fs::path(parent).parent_path());
  return complaints;
}

Complaints WithTarget(const Scenario& scenario, const Office& original,
                      const std::function<std::string(const Office&)>& target, const std::string& refusal) {
  Office office(original);
  scenario.Prepare(office);
  const std::string path = target(office);
  const Seen seen = scenario.RunTo(office, path);
  Complaints complaints;
  if (refusal.empty()) {
    if (!seen.success || !scenario.IsComplete(path)) complaints.push_back("fails: " + seen.Text());
  } else {
    complaints = ComplaintsOfRefusal(seen, {refusal, path});
  }
  if (!scenario.IsOldTarget(office)) complaints.push_back("another file has changed");
  Append(complaints, scenario.ComplaintsOfData(office));
  return complaints;
}

/// Another program writes to the database and does not come to an end.
Complaints LockedDatabase(const Scenario& scenario, const Office& original, const char* database) {
  Office office(original);
  scenario.Prepare(office);
  sqlite3* other = nullptr;
  sqlite3_open(office.Path(database).c_str(), &other);
  sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
  const Seen seen = scenario.Run(office);
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  Complaints complaints = ComplaintsOfRefusal(seen, {office.Path(database), "ocupada"});
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

/// Stops in the middle of a run, with part databases on the disk.
class Pausing : public OperationObserver {
 public:
  explicit Pausing(Child& child) : child_(child) {}
  void Begins(Operation operation, std::string_view subject) override {
    if (paused_ || operation != Operation::kWriteFile || !subject.ends_with("Salida.xls")) return;
    paused_ = true;
    child_.Pause();
  }

 private:
  Child& child_;
  bool paused_ = false;
};

Complaints SecondWizard(const Scenario& scenario, const Office& original, bool firstIsKilled) {
  Office office(original);
  scenario.Prepare(office);
  const std::string target = office.Path("Segunda.xls");
  std::ofstream(target) << "old";
  Child first([&](Child& self) {
    Pausing pausing(self);
    const OperationObserver::Scope scope(pausing);
    const Seen seen = scenario.Run(office);
    return seen.success && scenario.IsComplete(Scenario::Target(office)) ? Complaints{}
                                                                         : Complaints{seen.Text()};
  });
  Complaints complaints;
  if (!first.WaitForPause()) complaints.push_back("the first export ends too soon");
  Append(complaints, ComplaintsOfRefusal(scenario.RunTo(office, target),
                                         {"exportación en curso", office.Folder(), "vuelva a exportar"}));
  if (fs::file_size(target) != 3) complaints.push_back("the second one's old target has changed");
  fs::remove(target);
  if (firstIsKilled) {
    first.Kill();
    first.Finish();
  } else {
    first.GoOn();
    for (const std::string& complaint : first.Finish()) complaints.push_back("first: " + complaint);
  }
  Append(complaints, scenario.ComplaintsOfNextRun(office));
  return complaints;
}

}  // namespace

Findings LimitedFiles(const Scenario& scenario, const Office& original, bool all) {
  Findings findings;
  const auto run = [&](std::uintmax_t bytes) { return WithLimit(scenario, original, bytes); };
  AddSizes(findings, "files limited to a size", kMost, all ? 4 : 48, run);
  return findings;
}

Findings SmallDisks(const Scenario& scenario, const Office& original, bool all) {
  Findings findings;
  const auto run = [&](std::uintmax_t bytes) { return OnSmallDisk(scenario, original, bytes); };
  AddSizes(findings, "disk with free space", kMost, all ? 4 : 48, run);
  const auto runTarget = [&](std::uintmax_t bytes) { return TargetOnSmallDisk(scenario, original, bytes); };
  AddSizes(findings, "target's disk with free space", kMostForTarget, all ? 1 : 8, runTarget);
  return findings;
}

Findings ProtectedPlaces(const Scenario& scenario, const Office& original) {
  Findings findings;
  const auto add = [&](const std::string& what, const std::function<Complaints()>& work) {
    Add(findings, what, InChild(work));
  };
  add("read-only work folder", [&] { return ReadOnlyWorkFolder(scenario, original); });
  add("read-only folder of an old target", [&] { return ReadOnlyTargetFolder(scenario, original, true); });
  add("read-only folder of a new target", [&] { return ReadOnlyTargetFolder(scenario, original, false); });
  add("work folder without permission", [&] { return WithoutPermission(scenario, original); });
  return findings;
}

Findings AwkwardPlaces(const Scenario& scenario, const Office& original) {
  Findings findings;
  const auto add = [&](const std::string& what, const std::function<Complaints()>& work) {
    Add(findings, what, InChild(work));
  };
  add("target locked", [&] { return TargetInUse(scenario, original, LockWhole); });
  add("target with a locked record", [&] { return TargetInUse(scenario, original, LockRecord); });
  add("target open in an office program", [&] { return TargetInUse(scenario, original, OwnersFile); });
  for (const auto& folder : {std::pair{"con corchete]", "]"},
                             {"con [corchete", ""},
                             {"d'Ana; pwd =x", ""},
                             {"Ana;pwd=x", ";pwd="},
                             {"recibos, cobros e idrecibo select", ""},
                             {"100% Ñandú #1 «ó»", ""}}) {
    add(std::string("databases in ") + folder.first,
        [&] { return InFolder(scenario, original, folder.first, folder.second); });
  }
  using Target = std::function<std::string(const Office&)>;
  const std::pair<Target, std::string> targets[] = {
      {[](const Office& office) { return office.Path("no hay/Salida.xls"); }, "carpeta"},
      {[](const Office&) { return std::string("/mnt/unidad/Salida.xls"); }, "carpeta"},
      {[](const Office& office) { return office.Path("lista [1].xls"); }, "caracteres"},
      {[](const Office& office) { return office.Path("Ana; Luis.xls"); }, "caracteres"},
      {[](const Office& office) { return office.Path("Gestion.mdb"); }, "base de datos"},
      {[](const Office& office) { return office.Path("ExportacionAux.mdb"); }, "de trabajo"},
      {[](const Office& office) { return office.Path("VelmarExportacion.lock"); }, "de trabajo"},
      {[](const Office& office) {
         fs::create_directory(office.Path("Carpeta.xls"));
         return office.Path("Carpeta.xls");
       },
       "carpeta"},
      {[](const Office& office) { return office.Path("Ana, 50% d'ñ.xls"); }, ""},
      {[](const Office& office) { return office.Path(std::string(300, 'n') + ".xls"); }, "largo"},
  };
  for (const auto& target : targets) {
    add("target " + fs::path(target.first(original)).filename().string(),
        [&] { return WithTarget(scenario, original, target.first, target.second); });
  }
  fs::remove(original.Path("Carpeta.xls"));
  add("locked main database", [&] { return LockedDatabase(scenario, original, "Gestion.mdb"); });
  return findings;
}

Findings TwoWizards(const Scenario& scenario, const Office& original) {
  Findings findings;
  for (const bool killed : {false, true}) {
    Add(findings, killed ? "second wizard beside one that is killed" : "second wizard",
        InChild([&] { return SecondWizard(scenario, original, killed); }));
  }
  return findings;
}

}  // namespace velmar::reliability
