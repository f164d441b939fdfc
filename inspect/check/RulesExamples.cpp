// The examples themselves. A new rule needs one here: without it the tests fail and the manual is not whole.
#include "inspect/check/RulesManual.hpp"

namespace zeb {

namespace {

using enum CheckRule;

std::string in(std::string_view section, std::string_view lines) {
  const std::string name(section);
  return "[" + name + "]\n" + std::string(lines) + "[/" + name + "]\n";
}

std::string repeated(std::size_t count, char c) { return std::string(count, c); }

const std::string kShortShot = in("ShortShot", "TimeLimit = 2\n");
const std::string kCorrectPath = in("Compression", "FilePathOfLocation = part.loc\n");
constexpr const char* kChannel = "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n";
constexpr const char* kChannelClose = "[/3DCoolingChannel]\n";
constexpr const char* kTwoGroups = "MultipleGateMethod = 1\nNumberofInletGroups = 2\n";
constexpr const char* kViscoelasticHead =
    "100 200 0\n11 0.1 12\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n";

std::string withGroups(std::string_view lines) { return in("MultiGate", kTwoGroups + std::string(lines)); }
std::string withChannel(std::string_view before, std::string_view after) {
  std::string text = std::string(kChannel) + kChannelClose;
  return text.replace(text.find(before), before.size(), after);
}

}  // namespace

std::span<const RuleExample> ruleExamples() {
  static const RuleExample kExamples[] = {
      {kUnknownKey,
       "Lines that hold none of the section's keys are skipped in silence, so a misspelt key leaves its parameter at "
       "the default. The nearest keys of the section are named, and the sections that do have the key. What another "
       "solver reads of the same file is not reported.",
       in("Outlet", "IzOutlet = 1\n"), 2, 1, "'IzOutlet' is no key of [Outlet]", in("Outlet", "IsOutlet = 1\n")},
      {kInexactKey,
       "Keys are found anywhere in a line, also inside a longer name. The line sets the key that it happens to hold.",
       in("ShortShot", "OldTimeLimit = 2\n"), 2, 4,
       "'OldTimeLimit' is no key; the reader finds TimeLimit in the line and sets it to 2", kShortShot},
      {kUnknownSection,
       "A section opens only where its name stands exactly, letter case included. Lines outside of sections are "
       "ignored: all of its keys keep their defaults.",
       "[outlet]\nIsOutlet = 1\n[/outlet]\n", 1, 1, "[outlet] is no section; its lines are ignored",
       in("Outlet", "IsOutlet = 1\n")},
      {kKeyOutsideSection,
       "A key counts only between the opening and the closing line of its section. In the lines of the opening and the "
       "closing themselves it does not count either.",
       "TimeLimit = 2\n", 1, 1, "'TimeLimit' stands outside of every section and is ignored", kShortShot},
      {kUnclosedSection,
       "Without its closing line a section takes the rest of the file: later openings are plain lines of it, and their "
       "sections are never read.",
       "[Outlet]\nIsOutlet = 1\n", 1, 1, "[Outlet] is never closed: it takes the rest of the file",
       in("Outlet", "IsOutlet = 1\n")},
      {kWrongClosingTag,
       "Only the section's own closing tag ends it. Two names deserve care: FIBER_PLOT_DYNAMIC is closed by "
       "[/PLOT_DYNAMIC].",
       "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/FIBER_PLOT_DYNAMIC]\n[/PLOT_DYNAMIC]\n", 3, 1,
       "[/FIBER_PLOT_DYNAMIC] does not close [FIBER_PLOT_DYNAMIC] of line 1",
       "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/PLOT_DYNAMIC]\n"},
      {kCloseWithoutOpen,
       "A closing line outside of its section does nothing. Most often the opening above it is missing or misspelt, so "
       "that the lines between are ignored.",
       "[/Outlet]\n", 1, 1, "[/Outlet] closes a section that is not open", in("Outlet", "IsOutlet = 1\n")},
      {kSectionInsideSection,
       "Inside a section no other one opens: the lines up to its closing line are searched for keys of the outer "
       "section. Of two openings in one line the second is read behind the end of the first.",
       "[ShortShot]\n[Outlet]\n[/Outlet]\n[/ShortShot]\n", 2, 1,
       "[Outlet] stands inside [ShortShot] of line 1 and is not read", in("ShortShot", "") + in("Outlet", "")},
      {kCommentOpensSection, "The reader knows no comments: an opening opens its section wherever it stands in a line.",
       "# see [ShortShot]\n[/ShortShot]\n", 1, 7, "the comment opens [ShortShot]", "# see ShortShot\n"},
      {kCommentClosesSection,
       "The reader knows no comments: a closing ends its section wherever it stands in a line. The lines below it are "
       "outside, and ignored.",
       "[ShortShot]\nTimeLimit = 2\n# see [/ShortShot]\n", 3, 7, "the comment closes [ShortShot]", kShortShot},
      {kSectionRepeated,
       "Both copies are read, one after the other: the later values win, and keys that only the first copy holds keep "
       "the values from there.",
       in("Outlet", "") + in("Outlet", ""), 3, 1, "[Outlet] stood in line 1 already; later values win",
       in("Outlet", "")},
      {kSeveralKeys,
       "Every key of the section is looked for in every line. A key whose name is part of a longer key is set by the "
       "longer one's line, too, unless a later line sets it.",
       in("General", "FixCompressionFaceCK = 1\n"), 2, 4, "the line also sets CompressionFaceCK to 1",
       in("General", "FixCompressionFaceCK = 1\nCompressionFaceCK = 40\n")},
      {kCommentSetsKey,
       "The reader knows no comments: a key in a comment inside of its section is set to what follows the first '=', "
       "a text to an empty one where there is none.",
       in("ShortShot", "# TimeLimit = 2\n"), 2, 3, "the comment sets TimeLimit to 2",
       in("ShortShot", "# the limit of the time is 2\n")},
      {kMissingEquals, "The value is what stands behind the first '='. Without one there is no value to store.",
       in("ShortShot", "TimeLimit 2\n"), 2, 10, "no '=' behind TimeLimit; TimeLimit keeps 1.1", kShortShot},
      {kPresenceValue,
       "Some switches have no value: the word alone sets them, and nothing sets them back. Such a line says off and "
       "switches on.",
       in("Whiteboard", "SensorHeatFlux = 0\n"), 2, 16,
       "SensorHeatFlux is switched on by its presence; '= 0' is not read", in("Whiteboard", "SensorHeatFlux\n")},
      {kSeveralEquals, "The value begins behind the first '=' of the line, wherever the key stands.",
       in("ShortShot", "TimeLimit = 2 = 3\n"), 2, 15, "a second '='; TimeLimit becomes 2", kShortShot},
      {kUnparsedValue,
       "A value that does not begin with a number is not stored, and the parameter keeps what it had. \"nan\", \"inf\" "
       "and a bare exponent (\"1e\") are no numbers.",
       in("ShortShot", "TimeLimit = two\n"), 2, 13, "'two' is no number; TimeLimit keeps 1.1", kShortShot},
      {kTextAfterValue,
       "A number ends where its type allows no further character. So a whole number ends before an exponent, a number "
       "before a decimal comma, and a unit is never read.",
       in("General", "nParticleSubDt = 1e5\n"), 2, 19, "reading stops here: 1 is used, 'e5' is ignored",
       in("General", "nParticleSubDt = 100000\n")},
      {kIntFraction, "A whole number ends at the decimal point. (\".0\" loses nothing and is not reported.)",
       in("General", "TempSubdt = 2.5\n"), 2, 14, "reading stops here: 2 is used, '.5' is ignored",
       in("General", "TempSubdt = 3\n")},
      {kOutOfRange, "A number that does not fit its type is not stored: whole numbers end at 2147483647.",
       in("General", "TempSubdt = 2147483648\n"), 2, 13, "'2147483648' is no int in range; TempSubdt keeps 1",
       in("General", "TempSubdt = 2147483647\n")},
      {kNotFinite,
       "Positional fields and the moments and coefficients of a CMX file are read by the C library's rules, to which "
       "\"nan\", \"inf\" and numbers too large are numbers.",
       withChannel("0.5 0.5\n", "0.5 nan\n"), 6, 5, "'nan' is read as nan and used",
       withChannel("0.5 0.5\n", "0.5 0.6\n")},
      {kValueReplaced,
       "Some values are bounded by the reader, and a few stand for others. Where the value that is used is the "
       "default, "
       "nothing is reported: many a file says 0 for it.",
       in("ProcessModify", "FlowRateChangeUpperBound = 0.5\n"), 2, 28,
       "0.5 is out of range for FlowRateChangeUpperBound: 1 is used",
       in("ProcessModify", "FlowRateChangeUpperBound = 1.5\n")},
      {kCountRefused, "A list has 0 to 1,000,000 entries. Any other count is stored as 0, and the list is dropped.",
       in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = -1\n"), 3, 23,
       "the count is outside of 0 to 1000000; 0 is used",
       in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 0\n")},
      {kPointBeyondCount, "An element of a list is stored only when the count, in a line above it, is large enough.",
       in("UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x2 = 1.5\n"), 4, 1,
       "Point_x2 is beyond the list's count and is not stored",
       in("UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 1.5\nPoint_y1 = 0.5\n")},
      {kKeyRepeated, "Each line is stored as it comes, so the last one of a key wins.",
       in("ShortShot", "TimeLimit = 2\nTimeLimit = 3\n"), 3, 1,
       "TimeLimit was set in line 2 already; this line wins with 3", in("ShortShot", "TimeLimit = 2\nFRLimit = 3\n")},
      {kKeyGated,
       "Some sections have a gate: a key below whose limit the keys behind it are skipped. A skipped line whose value "
       "is in force anyway is not reported.",
       in("AutoVPCtrl", "AutoVPMode = 0\nEstCavityPres = 2\n"), 3, 1,
       "EstCavityPres is ignored: AutoVPMode is 0 since line 2; EstCavityPres keeps 0.1",
       in("AutoVPCtrl", "AutoVPMode = 1\nEstCavityPres = 2\n")},
      {kKeyAboveGate, "A gate opens for the lines below it; what stands above has been skipped already.",
       in("AutoVPCtrl", "EstCavityPres = 2\nAutoVPMode = 1\n"), 2, 1,
       "EstCavityPres is ignored: AutoVPMode, which opens it, stands in line 3; EstCavityPres keeps 0.1",
       in("AutoVPCtrl", "AutoVPMode = 1\nEstCavityPres = 2\n")},
      {kListTooShort,
       "A list takes as many lines as its count says, whatever they hold: a key among them is no longer a key.",
       withGroups("Weightings = 0.4\nDebug = 1\nWeightings = 0.6\n"), 5, 1,
       "the list of line 3 takes this line, but it is no usable entry",
       withGroups("Weightings = 0.4\nWeightings = 0.6\nDebug = 1\n")},
      {kListTooLong, "Entries behind the last one that the count announces are ignored.",
       withGroups("Weightings = 0.4\nWeightings = 0.6\nWeightings = 0.1\n"), 6, 1,
       "this entry belongs to no list, or stands behind the end of its list",
       withGroups("Weightings = 0.4\nWeightings = 0.6\n")},
      {kListConsumedClose,
       "A list that is one entry short takes the closing line of its section as the last one. The section then runs on "
       "to the end of the file.",
       withGroups("Weightings = 1\n"), 5, 1,
       "the list of line 3 takes this closing line as an entry; it has 1 of 2 entries",
       withGroups("Weightings = 0.4\nWeightings = 0.6\n")},
      {kWeightsSum, "The last weight of the file is not used: the reader makes it one minus the others.",
       withGroups("Weightings = 0.3\nWeightings = 0.3\n"), 5, 14,
       "the weights sum to 0.6, not to 1; the last one becomes one minus the others",
       withGroups("Weightings = 0.3\nWeightings = 0.7\n")},
      {kPositionalFields,
       "In the head and in positional sections a field is known by its place. Reading stops at the first field that is "
       "no number of its type, and the rest of the line keeps its values (in line 18 of the head: becomes 0).",
       withChannel("0.5 0.5\n", "0.5 half\n"), 6, 5,
       "line 5 of [3DCoolingChannel]: 1 of 2 fields can be read; reading stops at 'half'",
       withChannel("0.5 0.5\n", "0.5 0.6\n")},
      {kPositionalExtra,
       "Fields beyond those of the line are ignored; often one too many stands further left, and all behind it are "
       "shifted.",
       withChannel("0.5 0.5\n", "0.5 0.5 0.5\n"), 6, 9,
       "'0.5' behind the 2 fields of line 5 of [3DCoolingChannel] is ignored", withChannel("0.5 0.5\n", "0.5 0.6\n")},
      {kPositionalVersion,
       "The first line of a positional section must hold the version that the reader knows; otherwise nothing of it is "
       "read, and its lines are ignored.",
       withChannel("1002", "1003"), 2, 1,
       "version 1003 is not the one of [3DCoolingChannel]; nothing of the section is read",
       std::string(kChannel) + kChannelClose},
      {kPositionalTooShort,
       "The head and the positional sections have a fixed number of lines. Where one is missing, the next line of the "
       "file takes its place, be it the opening of a section.",
       withChannel("1 10\n", ""), 8, 1,
       "[3DCoolingChannel] has only 6 of its lines; this line is taken as its next one",
       std::string(kChannel) + kChannelClose},
      {kLineTooLong,
       "Ranks share lines of at most 254 bytes. A longer one is read whole in serial and cut in parallel.",
       "# " + repeated(253, 'x') + "\n", 1, 255,
       "the line has 255 bytes; in parallel it is cut here, behind the first 254", "# " + repeated(252, 'x') + "\n"},
      {kCarriageReturn,
       "Files are opened as text, where CR LF ends a line as LF does. A CR elsewhere is part of its line, and of a "
       "text "
       "value that ends there.",
       "# text\r\n", 1, 7,
       "1 line ends in CR LF; where the host's opener does not remove the CR, it becomes part of text values",
       "# text\n"},
      {kNulByte, "What stands behind it in its line is lost.", std::string("# a\0b\n", 6), 1, 4,
       "a NUL: the reader ignores the rest of the line", "# ab\n"},
      {kTabBeforeText, "Only spaces behind the '=' are skipped. A tab becomes the first character of a text.",
       in("Compression", "FilePathOfLocation = \tpart.loc\n"), 2, 22, "the tab becomes part of FilePathOfLocation",
       kCorrectPath},
      {kTrailingBlanks, "A text runs to the end of its line, blanks included: no file of that name will be found.",
       in("Compression", "FilePathOfLocation = part.loc  \n"), 2, 30, "the blanks become part of FilePathOfLocation",
       kCorrectPath},
      {kExtrasInText,
       "A text runs to the end of its line. What is meant as a comment, and quotation marks around a name, are part of "
       "the name: no file of that name will be found.",
       in("Compression", "FilePathOfLocation = part.loc # the part\n"), 2, 31,
       "the comment becomes part of FilePathOfLocation", kCorrectPath},
      {kNoFinalNewline,
       "The last line is read all the same; but it may be the rest of a file whose end was lost on the way.",
       "[ShortShot]\n[/ShortShot]", 2, 13, "the last line has no line end", "[ShortShot]\n[/ShortShot]\n"},
      {kByteOrderMark, "The three bytes belong to the first line; other programs that read the file may stumble.",
       "\xEF\xBB\xBF[ShortShot]\n[/ShortShot]\n", 1, 1, "the file begins with a byte-order mark", kShortShot},
      {kNotUtf8, "Names are handed on byte by byte; a name that is not UTF-8 may not be found on another system.",
       "# \xFC\n", 1, 3, "bytes that are not UTF-8", "# \xC3\xBC\n"},
      {kRepairedValue,
       "After reading, the library repairs the parameters for the molding and material type. The solver uses what the "
       "repair leaves, not what the file says.",
       kShortShot, 2, 1, "the repairs change the value from 2 to 8 (molding type GAIM)",
       in("ShortShot", "FRLimit = 0.003\n"), FileKind::kCmp, 6},
      {kEqualsDefault, "The line says what is in force without it. Off by default; -W equals-default switches it on.",
       in("ShortShot", "TimeLimit = 1.1\n"), 2, 13, "TimeLimit is 1.1 by default", kShortShot},
      {kViscoelasticRefused,
       "Only with --viscoelastic. A viscoelastic file is refused as a whole when its version, model or confirmation is "
       "wrong. A solver keeps it as NAME.vecmp.bak, writes a default file in its place and reckons with the defaults.",
       kShortShot, 1, 1,
       "line 1 does not hold the version of this file format; nothing of it is used, and a solver writes a default "
       "file "
       "in its place",
       kShortShot, FileKind::kCmp, 0, std::string("1005\n") + kViscoelasticHead,
       std::string("1006\n") + kViscoelasticHead},
      {kNoExtension,
       "Only with --viscoelastic. The viscoelastic file bears the name of the CMP file with the extension .vecmp. "
       "Where "
       "there is no extension to replace, a solver stops.",
       kShortShot,
       0,
       1,
       "the name has no extension: a solver finds no name for the viscoelastic file",
       kShortShot,
       FileKind::kCmp,
       0,
       {},
       std::string("1006\n") + kViscoelasticHead,
       "part"},
      {kVersionUnknown,
       "Version 1023 is followed by the head of 19 lines, 1013 by the standard solver's head. With any other number no "
       "head is read, and its lines are ignored.",
       "[VER] 1024\n", 1, 1, "version 1024 is unknown; no head is read", "[VER] 1013\n"},
      {kNothingRead,
       "Every text is a valid file to the reader. Most often the name of another file was given, or a file of another "
       "kind.",
       "The cover's parameters\n", 1, 1, "no line opens a section or announces a head: nothing of the file is used",
       "# The cover's parameters\n"},
  };
  return kExamples;
}

}  // namespace zeb
