#include "forms/small_forms.h"

#include <utility>

#include "forms/addresses.h"
#include "platform/settings.h"
#include "text/product.h"

namespace nimbrel {
namespace {

constexpr const char* noTipFile =
    "That the TIPOFDAY.TXT file was not found? \r\n\r\n"
    "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. "
    "Then place it in the same directory as the application. ";

/// The lines of a text. A line ends with CR, LF or CR LF, or at the end of the text.
std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(text.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
  }
  return lines;
}

}  // namespace

frmTip::frmTip(const FileSystem& files, SettingsStore& settings, std::function<double()> random,
               const std::string& programFolder, std::function<void(bool)> showAtStartup)
    : Form("frmTip", "Tip of the Day"),
      files_(files),
      settings_(settings),
      random_(std::move(random)),
      showAtStartup_(std::move(showAtStartup)) {
  chkLoadTipsAtStartup.event = [this] { chkLoadTipsAtStartup_Click(); };
  cmdNextTip.event = [this] { cmdNextTip_Click(); };
  cmdOK.event = [this] { Close(); };
  cancelButton = cmdOK.name;
  chkLoadTipsAtStartup.value = settings::ShowTips.readFlag(settings_);
  if (!LoadTips(programFolder + "\\TIPOFDAY.TXT")) lblTipText.text = noTipFile;
}

bool frmTip::LoadTips(const std::string& path) {
  if (!files_.isFile(path)) return false;
  try {
    tips_ = linesOf(files_.read(path));
  } catch (const FileError&) {
    return false;
  }
  cmdNextTip_Click();
  return true;
}

/// The same tip can come twice in a row.
void frmTip::cmdNextTip_Click() {
  current_ = static_cast<std::size_t>(random_() * static_cast<double>(tips_.size())) + 1;
  DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
  if (current_ <= tips_.size()) lblTipText.text = tips_[current_ - 1];
}

void frmTip::chkLoadTipsAtStartup_Click() {
  // Quirk: the menu command writes "True" or "False" to the same setting.
  settings::ShowTips.write(settings_, chkLoadTipsAtStartup.value ? "1" : "0");
  showAtStartup_(chkLoadTipsAtStartup.value);
}

frmAbout::frmAbout(Opener& opener) : Form("frmAbout", "About") {
  lblTitle.text = productTitle;
  lblVersion.text = "Version " + std::string(productVersion) + " - Build #" + std::string(productBuild);
  lblAddress.text = addresses::home;
  lblAddress.event = [&opener] { OpenWithShell(opener, addresses::home); };
  cmdOK.event = [this] { Close(); };
  cancelButton = cmdOK.name;
}

}  // namespace nimbrel
