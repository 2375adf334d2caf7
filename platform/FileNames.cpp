#include "platform/FileNames.h"

namespace qp {

namespace {

constexpr char16_t kKeptByte = 0xDC00;  // plus the byte, for a byte of 0x80 and above

// The code point of a well-formed UTF-8 sequence at raw[i], and its length; 0 when malformed
// (a stray byte, a cut sequence, an overlong form, a surrogate, beyond U+10FFFF).
int decodeOne(const QByteArray& raw, qsizetype i, char32_t& cp) {
  const auto byte = [&](qsizetype k) { return static_cast<unsigned char>(raw[k]); };
  const unsigned char b = byte(i);
  int len = 0;
  char32_t min = 0;
  if (b < 0x80) {
    cp = b;
    return 1;
  } else if ((b & 0xE0) == 0xC0) {
    len = 2, cp = b & 0x1F, min = 0x80;
  } else if ((b & 0xF0) == 0xE0) {
    len = 3, cp = b & 0x0F, min = 0x800;
  } else if ((b & 0xF8) == 0xF0) {
    len = 4, cp = b & 0x07, min = 0x10000;
  } else {
    return 0;
  }
  if (i + len > raw.size()) return 0;
  for (int k = 1; k < len; ++k) {
    if ((byte(i + k) & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (byte(i + k) & 0x3F);
  }
  if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return 0;
  return len;
}

bool isKeptByte(QChar c) { return c.unicode() >= kKeptByte + 0x80 && c.unicode() <= kKeptByte + 0xFF; }

}  // namespace

QString nameFromBytes(const QByteArray& raw) {
  QString name;
  name.reserve(raw.size());
  for (qsizetype i = 0; i < raw.size();) {
    char32_t cp = 0;
    const int len = decodeOne(raw, i, cp);
    if (len == 0) {
      name += QChar(static_cast<char16_t>(kKeptByte + static_cast<unsigned char>(raw[i])));
      ++i;
    } else {
      name += QString::fromUcs4(&cp, 1);
      i += len;
    }
  }
  return name;
}

QByteArray bytesOfName(const QString& name) {
  QByteArray raw;
  raw.reserve(name.size());
  for (qsizetype i = 0; i < name.size(); ++i) {
    const QChar c = name[i];
    if (c.isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
      raw += name.mid(i, 2).toUtf8();
      ++i;
    } else if (isKeptByte(c)) {
      raw += static_cast<char>(c.unicode() - kKeptByte);
    } else {
      raw += QString(c).toUtf8();
    }
  }
  return raw;
}

QString readableName(const QString& name) {
  QString shown = name;
  for (QChar& c : shown)
    if (isKeptByte(c)) c = QChar(static_cast<char16_t>(c.unicode() - kKeptByte));
  return shown;
}

}  // namespace qp
