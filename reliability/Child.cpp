#include "reliability/Child.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <stdexcept>

namespace velmar::reliability {
namespace {

constexpr unsigned kLongest = 600;  // seconds

void CloseAll(int (&ends)[2]) {
  for (int& end : ends) {
    if (end >= 0) close(end);
    end = -1;
  }
}

void WriteAll(int end, const std::string& text) {
  for (std::size_t done = 0; done < text.size();) {
    const ssize_t count = write(end, text.data() + done, text.size() - done);
    if (count <= 0) return;
    done += static_cast<std::size_t>(count);
  }
}

}  // namespace

std::vector<std::string> InChild(const std::function<std::vector<std::string>()>& work) {
  Child child([&work](Child&) { return work(); });
  return child.Finish();
}

Child::Child(const std::function<std::vector<std::string>(Child& self)>& work) {
  if (pipe(fromChild_) != 0 || pipe(toChild_) != 0 || pipe(result_) != 0) throw std::runtime_error("no pipe");
  pid_ = fork();
  if (pid_ < 0) throw std::runtime_error("no process can be made");
  if (pid_ > 0) {
    close(fromChild_[1]);
    close(toChild_[0]);
    close(result_[1]);
    fromChild_[1] = toChild_[0] = result_[1] = -1;
    return;
  }
  alarm(kLongest);
  try {
    for (const std::string& complaint : work(*this)) Report(complaint);
  } catch (const std::exception& failure) {
    Report(std::string("exception: ") + failure.what());
  }
  Report("end");
  _exit(0);
}

Child::~Child() {
  Kill();
  int status = 0;
  if (pid_ > 0) waitpid(pid_, &status, 0);
  CloseAll(fromChild_);
  CloseAll(toChild_);
  CloseAll(result_);
}

void Child::Pause() {
  WriteAll(fromChild_[1], "p");
  char byte = 0;
  if (read(toChild_[0], &byte, 1) != 1) _exit(1);
}

void Child::Report(std::string line) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  WriteAll(result_[1], line + '\n');
}

bool Child::WaitForPause() {
  char byte = 0;
  return read(fromChild_[0], &byte, 1) == 1;
}

void Child::GoOn() {
  WriteAll(toChild_[1], "g");
}

void Child::Kill() {
  if (pid_ > 0) kill(pid_, SIGKILL);
}

std::vector<std::string> Child::Finish() {
  std::string text;
  char piece[4096];
  for (ssize_t count = 0; (count = read(result_[0], piece, sizeof piece)) > 0;) {
    text.append(piece, static_cast<std::size_t>(count));
  }
  int status = 0;
  waitpid(pid_, &status, 0);
  pid_ = 0;
  std::vector<std::string> complaints;
  bool ended = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at);
    const std::string line = text.substr(at, end - at);
    at = end == std::string::npos ? text.size() : end + 1;
    if (line == "end") {
      ended = true;
    } else {
      complaints.push_back(line);
    }
  }
  if (!ended)
    complaints.push_back("the process has been ended by signal " + std::to_string(WTERMSIG(status)));
  return complaints;
}

bool EnterOwnNamespace() {
  const std::string user = "0 " + std::to_string(getuid()) + " 1";
  const std::string group = "0 " + std::to_string(getgid()) + " 1";
  if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  std::ofstream("/proc/self/setgroups") << "deny";
  std::ofstream("/proc/self/uid_map") << user;
  std::ofstream("/proc/self/gid_map") << group;
  return getuid() == 0;
}

}  // namespace velmar::reliability
