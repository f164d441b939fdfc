// Heads and positional sections: a fixed number of lines whose fields are known by their place.
#include <algorithm>
#include <utility>

#include "inspect/check/Checker.hpp"
#include "inspect/check/Wording.hpp"
#include "inspect/set/Values.hpp"

namespace zeb {

const CheckRule kPositionalFields{
    "positional-fields",
    "A positional line has too few or unreadable fields.",
    "give every field of the line as a number of its type",
    "In the head and in positional sections a field is known by its place. Reading stops at the first "
    "field that is no number of its type, and the rest of the line keeps its values (in line 18 of the "
    "head: becomes 0).",
    {"[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 half\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n",
     6, 5, "line 5 of [3DCoolingChannel]: 1 of 2 fields can be read; reading stops at 'half'",
     "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.6\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n"}};

const CheckRule kPositionalExtra{
    "positional-extra",
    "Text behind the fields of a positional line is ignored.",
    "leave nothing behind the fields",
    "Fields beyond those of the line are ignored; often one too many stands further left, and all behind "
    "it are shifted.",
    {"[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.5 0.5\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n",
     6, 9, "'0.5' behind the 2 fields of line 5 of [3DCoolingChannel] is ignored",
     "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.6\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n"}};

const CheckRule kPositionalVersion{
    "positional-version",
    "A positional section is not read: its version line does not match.",
    "write the version that the reader knows",
    "The first line of a positional section must hold the version that the reader knows; otherwise nothing "
    "of it is read, and its lines are ignored.",
    {"[3DCoolingChannel]\n1003\n0\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n",
     2, 1, "version 1003 is not the one of [3DCoolingChannel]; nothing of the section is read",
     "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n"}};

const CheckRule kPositionalTooShort{
    "positional-too-short",
    "A head or positional section has too few lines and takes others.",
    "add the missing lines",
    "The head and the positional sections have a fixed number of lines. Where one is missing, the next "
    "line of the file takes its place, be it the opening of a section.",
    {"[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n[/3DCoolingChannel]\n", 8, 1,
     "[3DCoolingChannel] has only 6 of its lines; this line is taken as its next one",
     "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n"}};

namespace {

std::string nameOfHead(const Section& section) { return std::string(section.open.empty() ? "the head" : section.open); }

}  // namespace

void Checker::judgePositional() {
  const Section& section = *m_line->section;
  m_positional = &section;
  if (m_line->end) m_section = nullptr;
  if (section.positional.versioned && m_line->positionalLine <= 1) return judgePositionalVersion();
  judgeFields();
  if (m_positionalShort) return;
  const int expected = m_line->expected, converted = m_line->converted;
  if (m_line->isMissing || judgeShort(expected == 0)) {
    m_positionalShort = true;
    if (m_line->isMissing) reportEnded();
    return;
  }
  const std::string place = "line " + std::to_string(m_line->positionalLine) + " of " + nameOfHead(section);
  const std::string_view rest = trimmed(text().substr(m_line->restAt));
  const std::size_t at = rest.empty() ? text().size() : text().find(rest, m_line->restAt);
  if (converted < expected && m_tagInFreeLine.place.line > 0) {
    m_positionalShort = true;
    reportShort(m_tagInFreeLine, m_sectionInFreeLine);
  } else if (converted < expected) {
    const bool isCarriedOver = std::any_of(m_line->hits.begin(), m_line->hits.end(), [&](const Hit& hit) {
      return hit.outcome == KeyOutcome::kStored && trimmed(m_line->value(hit)).empty();
    });
    add(kPositionalFields, at,
        place + ": " + std::to_string(converted) + " of " + std::to_string(expected) + " fields can be read" +
            (rest.empty() ? "" : "; reading stops at " + quoted(rest)) +
            (isCarriedOver ? "; for the others those of the line above count" : ""));
  } else if (expected > 0 && !rest.empty()) {
    add(kPositionalExtra, at,
        quoted(rest) + " behind the " + std::to_string(expected) + " field" + (expected > 1 ? "s" : "") + " of " +
            place + " is ignored");
  }
}

void Checker::judgePositionalVersion() {
  if (m_line->end != SectionEnd::kRefused) return;
  const Section& section = *m_line->section;
  const std::string open(section.open);
  if (m_line->isMissing) {
    return m_found.add(kPositionalTooShort, m_opening, open + " has none of its lines; the file ends");
  }
  const Parsed& version = m_line->hits.front().parsed;
  add(kPositionalVersion, 0,
      (version.failure == ParseFailure::kNone
           ? "version " + exact(static_cast<int>(version.number)) + " is not the one of " + open
           : "the version of " + open + " is expected here") +
          "; nothing of the section is read",
      "write " + valueOf(*section.positional.slots.front().row, m_line->block) + " in the line behind " + open);
}

void Checker::judgeFields() {
  for (const Hit& hit : m_line->hits) {
    if (hit.outcome == KeyOutcome::kNotTaken) {
      judgeNotTaken(hit);
      continue;
    }
    // The member itself may have another value by now, from a later place of its own.
    if (hit.row->field.type == FieldType::kDouble) {
      judgeFinite(hit.keyAt, hit.row->rule.apply(hit.parsed.number), trimmed(m_line->value(hit)));
    }
    judgeReplaced(hit, hit.keyAt);
  }
}

// A 0 is the way to leave the value to the block.
void Checker::judgeNotTaken(const Hit& hit) {
  if (hit.parsed.number == 0.0) return;
  add(kValueReplaced, hit.keyAt, number(hit.parsed.number) + " is not taken for " + std::string(hit.row->field.member),
      describe(*hit.row));
}

void Checker::reportEnded() {
  if (m_tagInFreeLine.place.line > 0) return reportShort(m_tagInFreeLine, m_sectionInFreeLine);
  m_found.add(kPositionalTooShort, m_opening,
              nameOfHead(*m_line->section) + " has only " + std::to_string(m_line->positionalLine - 1) +
                  " of its lines; the file ends");
}

// A tag among the lines: they are too few, and the section of the tag is lost with them. Lines without fields may hold
// any text, a bracketed word as well: there the lines behind it decide.
bool Checker::judgeShort(bool isFree) {
  const Tag tag = tagOf(text(), m_names->bracket());
  if (!tag || (isFree && m_names->sectionNamed(tag.name) == nullptr)) return false;
  Pending pending{here(text().find(tag.text)), nameOfHead(*m_line->section) + " has only " +
                                                   std::to_string(m_line->positionalLine - 1) +
                                                   " of its lines; this line is taken as its next one"};
  const std::string lostSection(tag.closes ? "" : tag.name);
  if (isFree) {
    m_tagInFreeLine = std::move(pending);
    m_sectionInFreeLine = lostSection;
    return false;
  }
  reportShort(std::move(pending), lostSection);
  return true;
}

void Checker::reportShort(Pending pending, const std::string& lostSection) {
  if (!lostSection.empty()) m_unknownSection = lostSection;
  m_found.add(kPositionalTooShort, std::move(pending.place), std::move(pending.message));
}

}  // namespace zeb
