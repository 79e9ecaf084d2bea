// orvane-first-paint [--then LEAD] COMMAND ...: starts a program with windows and prints how many
// milliseconds pass until its first window is painted on the screen. It also prints the peak memory
// of all its processes together, in KiB, until a second after that. Then it ends the program.
// The command LEAD, if there is one, makes the program show something; the second then counts from
// the end of LEAD.
//
// A window counts as painted when the screen shows two or more colours in its place. A user sees
// that with any toolkit, and no program needs to know that it is being timed.

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr int kLeastSide = 100;  // of a window that a user would call one
constexpr seconds kPatience{60};
constexpr seconds kSettle{1};

template <class Reply>
using Held = std::unique_ptr<Reply, decltype(&std::free)>;
template <class Reply>
Held<Reply> Hold(Reply* reply) {
  return Held<Reply>(reply, &std::free);
}

class Screen {
 public:
  Screen() : link_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(link_) != 0) {
      std::fputs("there is no screen\n", stderr);
      std::exit(2);
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(link_)).data->root;
  }
  ~Screen() { xcb_disconnect(link_); }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  bool ShowsAPaintedWindow() const {
    const auto tree = Hold(xcb_query_tree_reply(link_, xcb_query_tree(link_, root_), nullptr));
    if (tree == nullptr) return false;
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    const int count = xcb_query_tree_children_length(tree.get());
    return std::any_of(windows, windows + count, [this](xcb_window_t w) { return IsPainted(w); });
  }

 private:
  bool IsPainted(xcb_window_t window) const {
    const auto seen = Hold(
        xcb_get_window_attributes_reply(link_, xcb_get_window_attributes(link_, window), nullptr));
    if (seen == nullptr || seen->map_state != XCB_MAP_STATE_VIEWABLE) return false;
    if (seen->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) return false;
    const auto place =
        Hold(xcb_get_geometry_reply(link_, xcb_get_geometry(link_, window), nullptr));
    if (place == nullptr || place->width < kLeastSide || place->height < kLeastSide) return false;
    const int x = std::max<int>(place->x, 0);
    const int y = std::max<int>(place->y, 0);
    const auto image = Hold(xcb_get_image_reply(
        link_,
        xcb_get_image(link_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<int16_t>(x),
                      static_cast<int16_t>(y), kLeastSide, kLeastSide, ~0U),
        nullptr));
    if (image == nullptr) return false;
    const auto* words = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
    const int length = xcb_get_image_data_length(image.get()) / 4;
    return std::any_of(words, words + length, [&](std::uint32_t word) { return word != *words; });
  }

  xcb_connection_t* link_;
  xcb_window_t root_;
};

// The process and all processes that it started, found by their parents.
std::set<pid_t> FamilyOf(pid_t eldest) {
  std::map<pid_t, pid_t> parents;
  DIR* proc = opendir("/proc");
  while (const dirent* entry = readdir(proc)) {
    const pid_t pid = std::atoi(entry->d_name);
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string text;
    if (pid == 0 || !std::getline(stat, text)) continue;
    std::istringstream rest(text.substr(text.rfind(')') + 1));
    char state = 0;
    rest >> state >> parents[pid];
  }
  closedir(proc);
  std::set<pid_t> family{eldest};
  for (bool grown = true; grown;) {
    grown = false;
    for (const auto& [pid, parent] : parents) {
      if (family.contains(parent) && family.insert(pid).second) grown = true;
    }
  }
  return family;
}

long PeakOf(pid_t pid) {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) return std::atol(line.c_str() + 6);
  }
  return 0;
}

pid_t Start(char** command) {
  const pid_t child = fork();
  if (child == 0) {
    setpgid(0, 0);
    execvp(*command, command);
    std::perror(*command);
    _exit(127);
  }
  setpgid(child, child);
  return child;
}

double MillisecondsSince(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

int TimeWhole(char** command) {
  const auto begin = Clock::now();
  int status = 0;
  waitpid(Start(command), &status, 0);
  std::printf("%.2f\n", MillisecondsSince(begin));
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

}  // namespace

int main(int count, char** words) {
  if (count > 2 && std::string_view(words[1]) == "--run") return TimeWhole(words + 2);
  const bool is_led = count > 3 && std::string_view(words[1]) == "--then";
  char** command = words + (is_led ? 3 : 1);
  if (*command == nullptr) {
    std::fputs("orvane-first-paint [--then LEAD] COMMAND ...\n", stderr);
    return 2;
  }
  const Screen screen;
  if (screen.ShowsAPaintedWindow()) {
    std::fputs("the screen is not empty\n", stderr);
    return 2;
  }
  const auto begin = Clock::now();
  const pid_t child = Start(command);
  bool painted = false;
  while (!painted && Clock::now() - begin < kPatience && waitpid(child, nullptr, WNOHANG) == 0) {
    painted = screen.ShowsAPaintedWindow();
    if (!painted) std::this_thread::sleep_for(milliseconds(1));
  }
  const double passed = MillisecondsSince(begin);
  long peak = 0;
  bool led = true;
  if (painted && is_led) led = std::system(words[2]) == 0;
  if (painted) {
    std::this_thread::sleep_for(kSettle);
    for (const pid_t pid : FamilyOf(child)) peak += PeakOf(pid);
  }
  kill(-child, SIGTERM);
  std::this_thread::sleep_for(milliseconds(100));
  kill(-child, SIGKILL);
  while (waitpid(child, nullptr, 0) == -1 && errno == EINTR) {
  }
  if (!painted || !led) {
    std::fputs(painted ? "the program was not led on\n" : "no window was painted\n", stderr);
    return 1;
  }
  std::printf("%.1f %ld\n", passed, peak);
}
