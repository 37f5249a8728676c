// The named-tweak catalogue and its reader ref_tweak: a word names one
// registry value and the control that shows it, with the rule that turns the
// value's text into the control's state.
//
// The catalogue is the one place that knows these words, keys and values: the
// pages' writers and the run-time captions take them from here (tweak::kWords
// and tweakRow), not from copies of their own.
#pragma once

#include "pages/page_host.h"
#include "sysaccess/ellreg.h"

#include <array>
#include <string>

namespace pages {

namespace tweak {

// The words, as the page readers pass them; most are also a check box's
// caption. The codes of two to four capitals are internal and never shown.
inline constexpr char kBeepOnErrors[] = "Beep on Errors";
inline constexpr char kWinSmCcr[] = "WinSmCcr";
inline constexpr char kXMouseAutoRaise[] = "X Mouse Auto Raise";
inline constexpr char kQVOFAF[] = "QVOFAF";
inline constexpr char k31FS[] = "31FS";
inline constexpr char kPMH[] = "PMH";
inline constexpr char kFSA[] = "FSA";
inline constexpr char kRSF[] = "RSF";
inline constexpr char kPLF[] = "PLF";
inline constexpr char kShowTipsOnStartup[] = "Show Tips on Startup";
inline constexpr char kMoreCpuInfo[] = "More CPU Info";
inline constexpr char kSF[] = "SF";
inline constexpr char kNF[] = "NF";
inline constexpr char kST[] = "ST";
inline constexpr char kRun[] = "Run";
inline constexpr char kFindOnTheInternet[] = "Find on the Internet Option";
inline constexpr char kDocuments[] = "Documents";
inline constexpr char kUserLogOff[] = "User LogOff";
inline constexpr char kFavorites[] = "Favorites";
inline constexpr char kSmallIconsOnStartMenu[] = "Small Icons on Start Menu";
inline constexpr char kOpenWithAlwaysEnabled[] = "Open With Always Enabled";
inline constexpr char kDDM[] = "DDM";
inline constexpr char kFS1[] = "FS1";
inline constexpr char kFS2[] = "FS2";
inline constexpr char kFS3[] = "FS3";
inline constexpr char kTurnOffStartBanner[] = "Turn Off Start Banner";
inline constexpr char kTurnOffWindowAnimation[] = "Turn Off Window Animation";
inline constexpr char kUse24hTimeFormat[] = "Use 24h Time Format HHMM";
inline constexpr char kPrefixShortcutTo[] = "Prefix 'Shortcut To' on New Shortcuts";
inline constexpr char kUseShortcutArrows[] = "Use Shortcut Arrows";
inline constexpr char kFullWindowDraging[] = "Full Window Draging";
inline constexpr char kSmoothFonts[] = "Smooth Fonts";
inline constexpr char kFlexibleRycycleBin[] = "Flexible Rycycle Bin";
inline constexpr char kSaveDesktopSettings[] = "Save Desktop Settings on Exit";
inline constexpr char kBlinkingTextCursor[] = "Blinking Text Cursor";
inline constexpr char kOpenFolderInMsDos[] = "Open Folder in MS-DOS";
inline constexpr char kUseHiColorIcons[] = "Use Hi-Color Icons";
inline constexpr char kShowWindowsVersion[] = "Show Windows Version on Desktop";
inline constexpr char kExploreFromHere[] = "Explore from Here";
inline constexpr char kClockStaticCaption[] = "Clock Static Caption";
inline constexpr char kSystemsName[] = "System's Name";
inline constexpr char kRegisteredUser[] = "Registered User "; // the trailing blank belongs
inline constexpr char kRegisteredOrganization[] = "Registered Organization";
inline constexpr char kOpenUnknownInNotepad[] = "Open Unknown File Types in Notepad";

// Key paths that several rows share.
inline constexpr char kPOL[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
inline constexpr char kFSYS[] = "System\\CurrentControlSet\\Control\\FileSystem";
inline constexpr char kDESK[] = "Control Panel\\Desktop";
inline constexpr char kINTL[] = "Control Panel\\International";
inline constexpr char kUPOL[] = ".DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer";
inline constexpr char kINET0[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\FindExtensions\\Static\\InetFind\\0";

// How a row turns the value's text into its control's state.
enum class Rule {
  Pair,         // a ticks, b clears, any other text leaves the box
  TickedIf,     // a ticks, any other text clears
  ClearIf,      // a clears, any other text ticks
  PairPlus,     // as Pair, and "Not Found" ticks as well
  Choice,       // a puts shownA into the combo box, b puts shownB there
  Copy,         // the text goes into the text box as it is
  OpenWithVerb, // ticked only at windir followed by a
  TimeFormat,   // four values of INTL joined by "-", ticked only at a
  ClockCaption, // s1159 and s2359 into Check14 and Text6
};

struct Row {
  int number; // the row's place in the comparison order, from 1
  const char* word;
  sysaccess::Hive hive;
  const char* key;
  const char* value;  // "" is the key's default value
  const char* target; // design name of the control the row fills
  Rule rule;
  const char* a = nullptr;
  const char* b = nullptr;
  const char* shownA = nullptr; // Choice only
  const char* shownB = nullptr;
};

inline constexpr std::size_t kRowCount = 45;

// The catalogue in comparison order.
const std::array<Row, kRowCount>& rows();
// Row `number` (1 to 45).
const Row& row(int number);
// The first row whose word is exactly `word`, or null.
const Row* find(const std::string& word);

// Row 22's comparison text follows the Windows directory; row 41's second value
// and row 29's four values are named here.
inline constexpr char kOpenAsCommand[] = "\\rundll32.exe shell32.dll,OpenAs_RunDLL %1";
inline constexpr char kClockMorning[] = "s1159";
inline constexpr char kClockAfternoon[] = "s2359";
inline constexpr std::array<const char*, 4> kTimeFormatValues{"iTime", "iTLZero", "sTime",
                                                              "STimeFormat"};
inline constexpr char kTimeFormatTicked[] = "1-1--HHmm tt";

} // namespace tweak

// Reads the catalogue row of `word` into its control; an unknown word does
// nothing. A row whose control isn't on the form is passed over.
void ref_tweak(PageHost& host, const std::string& word);

} // namespace pages
