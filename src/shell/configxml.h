// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QString>

namespace corva
{

/// Reads a sectioned XML file (root, sections, keys) into a document. Unlike the document's own reader it
/// keeps values made of blanks only, and refuses nesting that could exhaust the stack. Empty on success, else
/// the reason; `document` is then untouched.
QString parseConfigXml(const QByteArray &bytes, QDomDocument &document);

/// Writes it as UTF-8, root and sections indented, the content of each key exactly as it is.
QByteArray formatConfigXml(const QDomDocument &document);

/// `text` with every character that XML 1.0 cannot hold replaced by U+FFFD.
QString xmlText(QString text);

/// Whether `name` may become an element: ASCII letters, digits, "_", "-", ".", not beginning with the last
/// three kinds save "_".
bool isXmlName(const QString &name);

} // namespace corva
