// The help file covers the program as it is built: every page of the tab
// strip has its topic, and every control of the three forms has its entry
// (an anchor named after the control) in the topic of the page it stands on.
// The forms are the real ones, so a control added to a layout without a help
// entry fails here.
#include "frame/page_table.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "tests/host/sim_fixture.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The help sources, found from this file's place in the repository.
const fs::path kHelpDir = fs::path(__FILE__).parent_path().parent_path().parent_path() / "help";

// The topic of each page, by tab.
constexpr std::array<const char*, 10> kPageTopics{
    "desktop.htm", "access.htm",   "regsafety.htm", "oem.htm",      "trouble.htm",
    "boot.htm",    "internet.htm", "tracking.htm",  "software.htm", "security.htm"};
constexpr const char* kMainTopic = "main.htm";
constexpr const char* kExitTopic = "exit.htm";
constexpr const char* kAboutTopic = "about.htm";

// Controls of the main form that the user never sees or works, and so have
// no entry of their own.
struct Exclusion {
  const char* name; // a design name, or an array's name for all its elements
  const char* reason;
};
constexpr Exclusion kNotUserFacing[] = {
    {"Picture0(1)", "lit face of the Help button: an image store outside the client area"},
    {"Picture0(2)", "normal face of the Help button: an image store outside the client area"},
    {"Picture2(1)", "lit face of the Minimise button: an image store outside the client area"},
    {"Picture2(2)", "normal face of the Minimise button: an image store outside the client area"},
    {"Picture3(1)", "lit face of the Exit button: an image store outside the client area"},
    {"Picture3(2)", "normal face of the Exit button: an image store outside the client area"},
    {"Picture4(1)", "lit face of the About button: an image store outside the client area"},
    {"Picture4(2)", "normal face of the About button: an image store outside the client area"},
    {"Picture6", "lit Refresh face: an image store outside the client area"},
    {"Picture7", "lit Apply face: an image store outside the client area"},
    {"Picture8", "normal Refresh face: an image store outside the client area"},
    {"Picture9", "normal Apply face: an image store outside the client area"},
    {"Image2", "the tab icons' image stores outside the client area; the tabs show them"},
    {"Hidden", "the invisible scratch text box that normalises texts"},
    {"Timer1", "the status band's 20 ms timer, not a control the user sees"},
};

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::set<std::string> anchorsOf(const std::string& html) {
  static const std::regex anchor(R"re(<a\s+name="([^"]+)")re", std::regex::icase);
  std::set<std::string> names;
  for (std::sregex_iterator it(html.begin(), html.end(), anchor), end; it != end; ++it)
    names.insert((*it)[1].str());
  return names;
}

// The title as the help writes it: "&&" of a caption is one ampersand, which
// HTML writes as "&amp;".
std::string htmlTitle(std::string title) {
  for (std::size_t at = title.find("&&"); at != std::string::npos; at = title.find("&&", at + 5))
    title.replace(at, 2, "&amp;");
  return title;
}

// The parts that a user control (the slider) builds inside itself belong to
// it: its one entry covers them.
const runtime::Control& helpSubject(const runtime::Control& control) {
  const runtime::Control* subject = &control;
  for (const runtime::Control* c = control.container(); c && c != &c->form(); c = c->container())
    if (c->kind() == runtime::ControlKind::UserControlHost) subject = c;
  return *subject;
}

class HelpCoverage : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    runtime::Application::instance().reset();
    program_ = std::make_unique<frame::Program>();
    for (const fs::directory_entry& entry : fs::directory_iterator(kHelpDir))
      if (entry.path().extension() == ".htm") {
        const std::string name = entry.path().filename().string();
        topics_[name] = readFile(entry.path());
        anchors_[name] = anchorsOf(topics_[name]);
      }
  }

  // The topic a control of the main form belongs to: its page's, found through
  // the tab of the strip that holds it, or the main window's.
  std::string topicOf(const runtime::Control& control) const {
    const runtime::Control* mainTab = program_->fmain.MainTab;
    for (const runtime::Control* c = &control; c && c != mainTab; c = c->container())
      if (c->container() == mainTab) return kPageTopics.at(c->containerTab());
    return kMainTopic;
  }

  // True when the topic has an entry for the control: an anchor with its
  // design name, or with its array's name.
  bool covers(const std::string& topic, const runtime::Control& control) const {
    const auto found = anchors_.find(topic);
    if (found == anchors_.end()) return false;
    return found->second.count(control.designName()) == 1 ||
           (control.index() >= 0 && found->second.count(control.name()) == 1);
  }

  static bool excluded(const runtime::Control& control) {
    for (const Exclusion& e : kNotUserFacing)
      if (control.designName() == e.name || (control.index() >= 0 && control.name() == e.name))
        return true;
    return false;
  }

  std::unique_ptr<frame::Program> program_;
  std::map<std::string, std::string> topics_;
  std::map<std::string, std::set<std::string>> anchors_;
};

TEST_F(HelpCoverage, EveryPageHasItsTopicWithTheTitleTheProgramShows) {
  for (const frame::PageRow& page : frame::kPages) {
    const std::string topic = kPageTopics.at(page.tab);
    ASSERT_EQ(1u, topics_.count(topic)) << topic;
    EXPECT_NE(std::string::npos, topics_[topic].find(htmlTitle(page.title)))
        << topic << " lacks the title " << page.title;
    EXPECT_EQ(1u, anchors_[topic].count("Frame4(" + std::to_string(page.frame) + ")"))
        << topic << " lacks the page frame";
  }
}

TEST_F(HelpCoverage, EveryControlOfTheMainFormHasItsEntryInItsPagesTopic) {
  int checked = 0;
  for (const auto& control : program_->fmain.form.controls()) {
    const runtime::Control& subject = helpSubject(*control);
    if (excluded(subject)) continue;
    const std::string topic = topicOf(subject);
    EXPECT_TRUE(covers(topic, subject))
        << control->designName() << " has no entry in help/" << topic;
    ++checked;
  }
  // The frame alone has some twenty controls that need help, each page more.
  EXPECT_GT(checked, 20);
}

TEST_F(HelpCoverage, EveryControlOfTheExitDialogHasItsEntry) {
  ASSERT_FALSE(program_->winExit.form.controls().empty());
  for (const auto& control : program_->winExit.form.controls())
    EXPECT_TRUE(covers(kExitTopic, *control)) << control->designName() << " has no entry";
  EXPECT_EQ(1u, anchors_[kExitTopic].count("WinExit"));
}

TEST_F(HelpCoverage, TheAboutWindowHasItsTopic) {
  for (const auto& control : program_->frmShape.form.controls())
    EXPECT_TRUE(covers(kAboutTopic, *control)) << control->designName() << " has no entry";
  EXPECT_EQ(1u, anchors_[kAboutTopic].count("frmShape"));
}

TEST_F(HelpCoverage, EveryExclusionNamesAControlThatExists) {
  for (const Exclusion& e : kNotUserFacing) {
    bool found = false;
    for (const auto& control : program_->fmain.form.controls())
      found = found || control->designName() == e.name || control->name() == e.name;
    EXPECT_TRUE(found) << e.name << " (" << e.reason << ") is no control of FMain";
  }
}

TEST_F(HelpCoverage, AControlWithoutAnEntryIsReported) {
  // The check itself: a control named nowhere in the help is not covered, and
  // one on a page is looked for in that page's topic, not anywhere.
  runtime::Form& form = program_->fmain.form;
  auto& stray = form.add<runtime::CheckBox>("NoSuchHelpEntry", -1, nullptr, {0, 0, 10, 10});
  EXPECT_FALSE(covers(kMainTopic, stray));
  runtime::Control* netCheck = form.find("net_check(0)");
  ASSERT_NE(nullptr, netCheck);
  EXPECT_EQ("access.htm", topicOf(*netCheck));
  EXPECT_TRUE(covers("access.htm", *netCheck));
  EXPECT_FALSE(covers("desktop.htm", *netCheck));
  // A part of the slider is answered for by the slider's own entry.
  for (const auto& control : form.controls())
    if (control->container() &&
        control->container()->kind() == runtime::ControlKind::UserControlHost) {
      EXPECT_EQ(control->container(), &helpSubject(*control));
      EXPECT_NE(control.get(), &helpSubject(*control));
    }
}

TEST_F(HelpCoverage, TheContentsAndTheProjectNameEveryTopic) {
  const std::string toc = readFile(kHelpDir / "toc.hhc");
  const std::string project = readFile(kHelpDir / "tweakloom99.hhp");
  const std::string index = readFile(kHelpDir / "index.hhk");
  EXPECT_NE(std::string::npos, project.find("Compiled file=Tweakloom 99.chm"));
  for (const auto& [topic, html] : topics_) {
    EXPECT_NE(std::string::npos, toc.find("\"" + topic + "\"")) << topic << " not in toc.hhc";
    EXPECT_NE(std::string::npos, project.find("\n" + topic)) << topic << " not in the project";
  }
  // Every index entry points at a topic and an anchor that exist.
  static const std::regex local(R"re(name="Local" value="([^"#]+)(#([^"]+))?")re");
  int entries = 0;
  for (std::sregex_iterator it(index.begin(), index.end(), local), end; it != end; ++it) {
    const std::string topic = (*it)[1].str(), anchor = (*it)[3].str();
    ASSERT_EQ(1u, topics_.count(topic)) << "index names " << topic;
    if (!anchor.empty()) {
      EXPECT_EQ(1u, anchors_[topic].count(anchor)) << topic << "#" << anchor;
    }
    ++entries;
  }
  EXPECT_GT(entries, 40);
}

TEST_F(HelpCoverage, TheTopicsUseNothingThatInternetExplorer4LacksOrThatIsNotOurs) {
  // No script, no frames, no objects, no outside pictures: HTML Help 1.x on
  // Windows 98 renders plain HTML 4 with tables, GIF and JPEG.
  static const std::regex image(R"re(<img\s+src="([^"]+)")re", std::regex::icase);
  for (const auto& [topic, html] : topics_) {
    for (const char* banned : {"<script", "javascript:", "<iframe", "<frame", "<object", "<embed"})
      EXPECT_EQ(std::string::npos, html.find(banned)) << topic << " uses " << banned;
    for (std::sregex_iterator it(html.begin(), html.end(), image), end; it != end; ++it) {
      const std::string src = (*it)[1].str();
      EXPECT_EQ(0u, src.rfind("images/", 0)) << topic << ": " << src;
      EXPECT_EQ(".gif", fs::path(src).extension()) << topic << ": " << src;
      EXPECT_TRUE(fs::exists(kHelpDir / src)) << topic << ": " << src << " is missing";
    }
  }
}

} // namespace
