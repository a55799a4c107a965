// The XML feeds, read with libxml2's streaming reader: one item in memory at a time, whatever
// the size of the file. Nothing is fetched from the network and entities are not expanded.
#include <libxml/parser.h>
#include <libxml/xmlreader.h>

#include <memory>
#include <string>
#include <string_view>

#include "feedcheck/item_readers.h"
#include "feedcheck/xml_error_place.h"

namespace talmo::feedcheck {
namespace {

constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_BIG_LINES;

struct FirstError {
  bool set = false;
  int code = 0;
  int line = 0;
  int column = 0;
  std::string message;
  bool root_closed = false;  // the parser had read the root element's end tag
};

// What the walk over the document knows, shared with the error callback.
struct Walk {
  FileReader* file = nullptr;
  bool read_failed = false;
  std::size_t bytes = 0;
  FirstError error;
};

int read_chunk(void* context, char* buffer, int size) {
  Walk& walk = *static_cast<Walk*>(context);
  try {
    const std::size_t got = walk.file->read(buffer, static_cast<std::size_t>(size));
    walk.bytes += got;
    return static_cast<int>(got);
  } catch (const FileReadError&) {
    walk.read_failed = true;
    return -1;
  }
}

int close_nothing(void*) {
  return 0;
}

void keep_first_fatal_error(void* context, xmlErrorPtr error) {
  Walk& walk = *static_cast<Walk*>(context);
  if (error == nullptr || error->level != XML_ERR_FATAL || walk.error.set)
    return;
  walk.error.set = true;
  walk.error.code = error->code;
  walk.error.line = error->line;
  walk.error.column = error->int2;
  walk.error.message = error->message ? error->message : "";
  // The reader parses ahead of the nodes it hands out, so only the parser itself knows
  // whether the root element was already closed when it stopped.
  if (error->domain == XML_FROM_PARSER && error->ctxt != nullptr)
    walk.error.root_closed =
        static_cast<xmlParserCtxtPtr>(error->ctxt)->instate == XML_PARSER_EPILOG;
  while (!walk.error.message.empty() &&
         (walk.error.message.back() == '\n' || walk.error.message.back() == ' '))
    walk.error.message.pop_back();
}

void ignore_message(void*, const char*, ...) {}

std::string text_of(const xmlChar* text) {
  return text ? reinterpret_cast<const char*>(text) : "";
}

using ReaderPtr = std::unique_ptr<xmlTextReader, decltype(&xmlFreeTextReader)>;

// Collects the items of one feed from the reader's nodes.
class ItemCollector {
 public:
  ItemCollector(const FeedKind& kind, const ItemHandler& on_item)
      : kind_(kind), on_item_(on_item) {}

  void node(xmlTextReaderPtr reader) {
    const int type = xmlTextReaderNodeType(reader);
    const int depth = xmlTextReaderDepth(reader);
    if (type == XML_READER_TYPE_ELEMENT) {
      start_element(reader, depth);
      if (xmlTextReaderIsEmptyElement(reader) == 1)
        end_element(depth);
    } else if (type == XML_READER_TYPE_END_ELEMENT) {
      end_element(depth);
    } else if (type == XML_READER_TYPE_TEXT || type == XML_READER_TYPE_CDATA ||
               type == XML_READER_TYPE_WHITESPACE ||
               type == XML_READER_TYPE_SIGNIFICANT_WHITESPACE) {
      text(reader, depth);
    }
  }

  const std::string& root() const { return root_; }

 private:
  void start_element(xmlTextReaderPtr reader, int depth) {
    const std::string name = text_of(xmlTextReaderConstName(reader));
    if (depth == 0) {
      root_ = name;
    } else if (depth == 1 && root_ == kind_.root && name == kind_.item) {
      item_ = FeedItem{};
      item_.number = ++number_;
      item_.line = static_cast<std::size_t>(xmlGetLineNo(xmlTextReaderCurrentNode(reader)));
      in_item_ = true;
    } else if (in_item_ && depth == 2) {
      item_.fields.push_back(Field{name, "", false, false});
      in_field_ = true;
    } else if (in_item_ && depth > 2 && (name == "PARAM_NAME" || name == "VAL")) {
      pair_part_ = Field{name, "", false, false};
      pair_depth_ = depth;
    }
  }

  void end_element(int depth) {
    if (in_item_ && depth == 1) {
      in_item_ = false;
      on_item_(item_);
    } else if (in_item_ && depth == 2) {
      in_field_ = false;
    } else if (pair_depth_ == depth) {
      if (pair_part_.name == "PARAM_NAME")
        param_name_ = pair_part_.value;
      else
        item_.params.push_back(Field{param_name_, pair_part_.value, pair_part_.cut, false});
      pair_depth_ = -1;
    }
  }

  void text(xmlTextReaderPtr reader, int depth) {
    const xmlChar* value = xmlTextReaderConstValue(reader);
    if (value == nullptr)
      return;
    const std::string_view text = reinterpret_cast<const char*>(value);
    if (in_field_ && depth == 3)
      item_.fields.back().append(text);
    if (pair_depth_ >= 0 && depth == pair_depth_ + 1)
      pair_part_.append(text);
  }

  const FeedKind& kind_;
  const ItemHandler& on_item_;
  std::string root_;
  std::size_t number_ = 0;
  FeedItem item_;
  bool in_item_ = false;
  bool in_field_ = false;
  Field pair_part_;
  int pair_depth_ = -1;
  std::string param_name_;
};

// Names the item an error at `error` is in, or the one before it.
std::string item_context(FileReader& file, const FeedKind& kind, const FirstError& error) {
  const ItemPlace place =
      locate_item(file, kind.item, kind.key, static_cast<std::size_t>(error.line),
                  static_cast<std::size_t>(error.column));
  const auto named = [](std::size_t number, const std::string& key) {
    return "item " + std::to_string(number) + (key.empty() ? "" : " (\"" + key + "\")");
  };
  if (place.number == 0)
    return "before the first item";
  if (!place.inside)
    return "after " + named(place.number, place.key);
  std::string context = "in " + named(place.number, place.key);
  if (place.key.empty() && !place.previous_key.empty())
    context += ", after " + named(place.number - 1, place.previous_key);
  return context;
}

FileProblem not_well_formed(FileReader& file, const FeedKind& kind, const Walk& walk) {
  const FirstError& error = walk.error;
  if (walk.bytes == 0)
    return {ProblemKind::NotWellFormed, "the file is empty"};
  if (!error.set)
    return {ProblemKind::NotWellFormed, "the XML reader stopped without saying why"};
  std::string message = error.message;
  // The streaming parser reports a file that stops before its root element is closed as extra
  // content at its end, the same as text after the root element.
  if (error.code == XML_ERR_DOCUMENT_END && !error.root_closed) {
    message = std::string("the file ends before </") + kind.root + "> closes it: it was cut short";
  }
  return {ProblemKind::NotWellFormed, "line " + std::to_string(error.line) + ", column " +
                                          std::to_string(error.column) + ", " +
                                          item_context(file, kind, error) + ": " + message};
}

}  // namespace

std::optional<FileProblem> read_xml_items(FileReader& file, const FeedKind& kind,
                                          const ItemHandler& on_item) {
  xmlSetGenericErrorFunc(nullptr, ignore_message);
  Walk walk;
  walk.file = &file;
  ReaderPtr reader(xmlReaderForIO(read_chunk, close_nothing, &walk, nullptr, nullptr, kOptions),
                   &xmlFreeTextReader);
  if (!reader)
    throw FileReadError(file.path());
  xmlTextReaderSetStructuredErrorHandler(reader.get(), keep_first_fatal_error, &walk);
  ItemCollector collector(kind, on_item);
  int result = 0;
  while ((result = xmlTextReaderRead(reader.get())) == 1) {
    collector.node(reader.get());
    if (walk.error.set)
      break;
  }
  if (walk.read_failed)
    throw FileReadError(file.path());
  if (result < 0 || walk.error.set)
    return not_well_formed(file, kind, walk);
  if (collector.root().empty())
    return FileProblem{ProblemKind::NotWellFormed, "the file holds no XML element"};
  if (collector.root() != kind.root) {
    return FileProblem{ProblemKind::NoItems,
                       "the root element is <" + collector.root() + ">, not <" + kind.root + ">"};
  }
  return std::nullopt;
}

}  // namespace talmo::feedcheck
