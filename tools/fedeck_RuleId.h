#pragma once
// Stable names for kinds of diagnostics, for tools that group findings by
// rule (code-scanning services, SARIF viewers).

#include <string>
#include <string_view>

// The wording of a diagnostic with its particulars taken out: the first line
// of `text`, where a quoted span becomes <text>, a word starting with `*`
// becomes *<keyword>, a word of capitals (a set, part or parameter name, with
// digits or punctuation) becomes <name>, and any other word holding a digit
// becomes <n>. Two messages of one kind, about different nodes, sets or
// keywords, give the same wording.
std::string fedeck_MessageKind(std::string_view text);

// "FD" and eight hexadecimal digits of a hash of that wording: the same kind
// of message gets the same id in every run and every deck.
std::string fedeck_RuleId(std::string_view text);
// The same for a wording fedeck_MessageKind gave.
std::string fedeck_RuleIdOfKind(std::string_view kind);
