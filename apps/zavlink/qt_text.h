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
// A tool tip that is never taken for rich text, whatever a file or a master has put into it; long ones wrap.
inline QString Tipp(const QString& text) {
  static constexpr qsizetype eine_zeile = 60;
  if (text.size() <= eine_zeile && !Qt::mightBeRichText(text)) return text;
  return "<qt>" + text.toHtmlEscaped().replace('\n', "<br>") + "</qt>";
}
// A caption without its mnemonic mark.
inline QString Ohne_kuerzel(QString text) {
  return text.replace(QRegularExpression("&(?!&)"), "").replace("&&", "&");
}

}  // namespace zav::fenster
