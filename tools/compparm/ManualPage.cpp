// The manual page, written from the same descriptions as --help.
#include "tools/compparm/HelpText.hpp"

namespace compparm {

namespace {

// What roff would take for its own.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '-') {
      result += "\\-";
    } else if (c == '\\') {
      result += "\\e";
    } else {
      const bool startsLine = result.empty() || result.back() == '\n';
      if (startsLine && (c == '.' || c == '\'')) result += "\\&";
      result += c;
    }
  }
  return result;
}

std::string bold(std::string_view text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + escaped(text) + "\\fR"; }

std::string usage(const CLI::App& command) {
  std::string text = bold("compparm " + command.get_name());
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) continue;
    std::string name = italic(option->get_name(true));
    if (option->get_items_expected_max() > 1) name += "...";
    text += option->get_required() ? " " + name : " [" + name + "]";
  }
  return text + " [" + italic("OPTION") + "...]\n";
}

// "{text,json}" says more than the name in front of it.
std::string valueName(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const auto open = type.find('{');
  if (open == type.npos) return type.substr(0, type.find(':'));
  std::string choices = type.substr(open + 1, type.find('}') - open - 1);
  for (char& c : choices) c = c == ',' ? '|' : c;
  return choices;
}

std::string optionText(const CLI::Option& option) {
  std::string names;
  if (option.get_positional() && option.get_lnames().empty() && option.get_snames().empty()) {
    names = italic(option.get_name(true));
  }
  for (const std::string& name : option.get_snames()) names += (names.empty() ? "" : ", ") + bold("-" + name);
  for (const std::string& name : option.get_lnames()) names += (names.empty() ? "" : ", ") + bold("--" + name);
  if (!option.get_positional() && option.get_items_expected_max() > 0) names += " " + italic(valueName(option));
  return ".TP\n" + names + "\n" + escaped(option.get_description()) + "\n";
}

std::string footerText(const CLI::App& command) {
  std::string footer = command.get_footer();
  while (!footer.empty() && footer.back() == '\n') footer.pop_back();
  return footer.empty() ? "" : ".PP\n.EX\n" + escaped(footer) + "\n.EE\n";
}

}  // namespace

std::string manualPage(const CLI::App& app) {
  std::string text =
      ".\\\" Written by `compparm manual`; a test compares it with the program.\n"
      ".TH COMPPARM 1 \"\" \"ZEBKNCompParm\" \"User Commands\"\n"
      ".SH NAME\ncompparm \\- see, check and compare the parameters of an injection\\-molding analysis\n"
      ".SH SYNOPSIS\n";
  for (const CLI::App* command : commandsOf(app)) text += usage(*command) + ".br\n";
  text +=
      ".SH DESCRIPTION\n" + escaped(app.get_description()) +
      "\nParameter files are read with the reader that solvers link, so that the values shown are the values used.\n"
      "No command writes a file.\n.SH COMMANDS\n";
  for (const CLI::App* command : commandsOf(app)) {
    text += ".SS compparm " + command->get_name() + "\n" + escaped(command->get_description()) + ".\n";
    for (const CLI::Option* option : command->get_options()) text += optionText(*option);
    text += footerText(*command);
  }
  text += ".SH EXAMPLES AND EXIT STATUS\n" + footerText(app).substr(4);
  text += ".SH ENVIRONMENT\n.TP\n" + bold("NO_COLOR") +
          "\nNo colours when set and not empty. Without a terminal there are none either.\n";
  return text;
}

}  // namespace compparm
