// Texts between the forms (UTF-8) and Qt.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace zav::fenster {

inline QString Q(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string S(const QString& text) {
  const QByteArray b = text.toUtf8();
  return {b.constData(), static_cast<std::size_t>(b.size())};
}
// A text for a tip. Qt takes what looks like markup for markup, and the pictures that it names for files to
// open: texts of a project and of a master stay texts. Labels are told so by Qt::PlainText.
inline QString Tipp(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
// A caption without its mnemonic mark.
inline QString Ohne_kuerzel(QString text) {
  return text.replace(QRegularExpression("&(?!&)"), "").replace("&&", "&");
}

}  // namespace zav::fenster
