#pragma once

class QTranslator;

// The running application speaks Polish: the Polish locale for numbers and
// dates, and Qt's own texts (message box buttons, print preview, file
// prompts) from Qt's Polish translations, which stay English without them.
// Returns the translator, owned by the application, or nullptr when the
// translations are not installed.
QTranslator *usePolishLanguage();
