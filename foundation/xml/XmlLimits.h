// Limits of the XML readers. They protect a host against hostile files; each can be raised.
#pragma once

#include <cstddef>

#include "foundation/Export.h"

/// Exactly the limit passes; exceeding one raises a KYRException that names the limit and the
/// position. The values hold for the process; change them only while no file is being read.
struct KYR_EXPORT XmlLimits {
  /// Nested elements. No design tool nests deeper than some dozens.
  std::size_t maxDepth = 1000;
  /// Attributes on one element.
  std::size_t maxAttributes = 10000;
  /// Bytes of one attribute value or one uninterrupted text, in UTF-8.
  std::size_t maxTextBytes = std::size_t{64} * 1024 * 1024;
  /// Bytes of one tag or attribute name, in UTF-8.
  std::size_t maxNameBytes = 4096;
  /// Bytes of one tag, comment, processing instruction or declaration, in UTF-8. The tokenizer holds
  /// each of them whole, so this bounds its memory before the limits above can be tested. It raises at
  /// the latest when twice as much has been read.
  std::size_t maxMarkupBytes = std::size_t{256} * 1024 * 1024;
  /// Nodes of one document; likewise its attributes, and its distinct texts. Numbers of 32 bits count
  /// them, so the value given here is also the highest possible one.
  std::size_t maxItems = 0xFFFFFFFEU;

  /// The limits in force.
  static const XmlLimits& get() noexcept;
  static void set(const XmlLimits& limits) noexcept;
};

/// The encoding that every file is read with whatever it says of itself; none by default.
/// `name` is an encoding name as in an XML declaration; null or empty lifts the order.
KYR_EXPORT void forceXmlEncoding(const char* name);
