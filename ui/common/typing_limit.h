#pragma once
// A limit on what the user types or pastes into a field, as a classic edit box keeps
// it: an edit that would make the text longer than the limit keeps only as much of
// what it adds as fits. Text the program puts into the field is never cut, so a
// result or a copied station keeps every digit.

class QLineEdit;

namespace gw {

// Once for a field; a limit of 0 is none.
void SetTypingLimit(QLineEdit& field, int limit);

}  // namespace gw
