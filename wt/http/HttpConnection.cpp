// SPDX-License-Identifier: MIT
#include "http/HttpConnection.h"

#include "base/Log.h"
#include "http/ByteChannel.h"
#include "http/HttpDate.h"
#include "http/UrlCodec.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace Wt
{
namespace Net
{

namespace
{

constexpr std::chrono::milliseconds kProgressInterval{200};

struct Header {
  const char *name;
  const char *value;
};

/// Sent with everything.
const Header kCommonHeaders[] = {
    {"X-Content-Type-Options", "nosniff"},
    {"Referrer-Policy", "no-referrer"},
    {"Cross-Origin-Resource-Policy", "same-origin"},
};

/// Sent with a page.
const Header kPageHeaders[] = {
    {"Content-Type", "text/html; charset=utf-8"},
    {"Cache-Control", "no-store"},
    {"Content-Security-Policy",
     "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; connect-src 'self'; "
     "font-src 'self'; frame-ancestors 'none'; base-uri 'none'; form-action 'self'"},
    {"Permissions-Policy",
     "camera=(), display-capture=(), geolocation=(), microphone=(), payment=(), usb=()"},
    {"Cross-Origin-Opener-Policy", "same-origin"},
};

constexpr int kForeignName = 421;
constexpr char kForeignNameText[] =
    "This server does not know the name that you used as its own. Use its numeric "
    "address, or have the name added by the option --servername.\n";

constexpr char kStrictTransport[] = "max-age=86400";

/// Fields that belong to the connection, not to what a resource says.
const char *const kOwnHeaders[] = {"connection", "content-length",    "date",
                                   "keep-alive", "transfer-encoding", "upgrade"};

std::string lowerCase(std::string text)
{
  for (char &c : text)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c | 0x20);
  return text;
}

bool isToken(const std::string &text)
{
  return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) {
    return c > 0x20 && c < 0x7f && !std::strchr("\"(),/:;<=>?@[\\]{}", c);
  });
}

/// A name, or an address, and perhaps a port: nothing that could change the meaning of a URL.
bool isHost(const std::string &host)
{
  return host.size() <= 260 &&
         host.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                "-._~:[]%") == std::string::npos;
}

/// Whether a comma separated list has that word, in whatever case.
bool listed(const std::string &list, const std::string &lowerCaseWord)
{
  const std::string lower = lowerCase(list);
  std::size_t at = 0;
  while (at <= lower.size()) {
    const std::size_t end = std::min(lower.find(',', at), lower.size());
    std::string item = lower.substr(at, end - at);
    item.erase(0, item.find_first_not_of(" \t"));
    item.erase(item.find_last_not_of(" \t") + 1);
    if (item == lowerCaseWord)
      return true;
    at = end + 1;
  }
  return false;
}

std::string lastItem(const std::string &list)
{
  std::string item = list.substr(list.find_last_of(',') + 1);
  item.erase(0, item.find_first_not_of(" \t"));
  return item;
}

std::string withoutDefaultPort(const std::string &host, bool secure)
{
  const std::string port = secure ? ":443" : ":80";
  if (host.size() > port.size() && host.compare(host.size() - port.size(), port.size(), port) == 0)
    return host.substr(0, host.size() - port.size());
  return host;
}

} // namespace

HttpConnection::HttpConnection(HttpService &service, ByteChannel &channel, Peer peer)
    : service_(service), channel_(&channel), peer_(std::move(peer)),
      deadline_(service.loop.now() + service.limits.head)
{
}

HttpConnection::~HttpConnection()
{
  dropUpload();
}

// Reading

void HttpConnection::received(std::string_view bytes)
{
  if (link_) {
    link_->received(bytes);
    return;
  }
  if (state_ == State::Closing || !channel_)
    return;
  input_ += bytes;
  process();
}

void HttpConnection::process()
{
  if (processing_)
    return;
  const auto self = shared_from_this();
  processing_ = true;
  while (channel_ && !input_.empty() && step()) {
  }
  processing_ = false;
  if (input_.empty())
    input_.shrink_to_fit();
}

/// One step of work with what is in `input_`; false if there is none, or it has to wait.
bool HttpConnection::step()
{
  if (state_ == State::WebSocket) {
    const std::string bytes = std::exchange(input_, std::string());
    link_->received(bytes);
    return false;
  }
  if (state_ == State::Idle) {
    state_ = State::Head;
    deadline_ = service_.loop.now() + service_.limits.head;
    parser_ = std::make_unique<RequestParser>();
  }
  if (state_ != State::Head && state_ != State::Body)
    return false;
  const std::size_t used = parser_->parse(input_);
  input_.erase(0, used);
  if (parser_->state() == RequestParser::State::Failed) {
    refuse(parser_->failureStatus());
    return false;
  }
  if (state_ == State::Head && parser_->state() != RequestParser::State::Head) {
    if (understand())
      dispatch();
    return true;
  }
  if (state_ == State::Body && request_->bodySize > service_.maximumBody) {
    dropUpload();
    askResource({}, request_->bodySize);
    return false;
  }
  if (state_ == State::Body && parser_->state() == RequestParser::State::Done) {
    finishUpload();
    return true;
  }
  return used > 0;
}

/// Answers what is no proper request, and closes: nobody can tell where a next one would begin.
void HttpConnection::refuse(int status, const std::string &explanation)
{
  dropUpload();
  if (!request_)
    request_ = std::make_unique<Request>();
  request_->keepAlive = false;
  Response response = Response::plain(status);
  response.body += explanation;
  answer(std::move(response));
}

// Requests

/// Makes the request of the parsed head; refuses it and returns false if it makes no sense.
bool HttpConnection::understand()
{
  request_ = std::make_unique<Request>();
  Request &request = *request_;
  request.parsed = parser_->takeHead();
  const ParsedHead &parsed = request.parsed;
  const bool whole = parser_->state() == RequestParser::State::Done;
  request.keepAlive = parsed.keepAlive && whole && !stopping_;
  request.headOnly = parsed.method == "HEAD";
  const std::size_t hosts = parsed.count("host");
  std::string target = parsed.target;
  const std::size_t authority = target.find("://");
  if (authority != std::string::npos && authority < 6) {
    const std::size_t path = target.find('/', authority + 3);
    target = path == std::string::npos ? "/" : target.substr(path);
  }
  target = target.substr(0, target.find('#'));
  if (hosts > 1 || (hosts == 0 && parsed.http11) || !isHost(parsed.header("host")) || target.empty() ||
      target[0] != '/') {
    refuse(400);
    return false;
  }
  describe(std::move(target));
  const std::string &host = parsed.header("host");
  const int refusal = request.head.path.empty()                      ? 400
                      : parsed.unknownCoding                         ? 501
                      : !host.empty() && !service_.names.isOwn(host) ? kForeignName
                                                                     : 0;
  if (refusal != 0)
    refuse(refusal, refusal == kForeignName ? kForeignNameText : "");
  return refusal == 0;
}

/// Fills in the head as the sessions see it. The path stays empty if it is malformed.
void HttpConnection::describe(std::string target)
{
  const ParsedHead &parsed = request_->parsed;
  Engine::RequestHead &head = request_->head;
  const std::size_t mark = std::min(target.find('?'), target.size());
  head.method = parsed.method;
  head.scheme = peer_.secure ? "https" : "http";
  head.clientAddress = peer_.address;
  head.host = parsed.header("host");
  head.query = target.substr(std::min(target.size(), mark + 1));
  head.parameters = parseQuery(head.query);
  head.headers = parsed.headers;
  const bool sane = percentDecode(std::string_view(target).substr(0, mark), false, head.path) &&
                    std::none_of(head.path.begin(), head.path.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; });
  if (!sane)
    head.path.clear();
  if (service_.behindProxy) {
    const std::string address = lastItem(parsed.header("x-forwarded-for"));
    const std::string scheme = lowerCase(lastItem(parsed.header("x-forwarded-proto")));
    if (!address.empty() && isHost(address))
      head.clientAddress = address;
    if (scheme == "http" || scheme == "https")
      head.scheme = scheme;
  }
}

void HttpConnection::dispatch()
{
  Request &request = *request_;
  const Router::Route route = service_.router.route(request.head.path);
  const std::string &method = request.head.method;
  if (route.kind == Router::Kind::EntryPoint) {
    request.head.entryPoint = route.entryPoint;
    dispatchEntryPoint();
  } else if (route.kind == Router::Kind::Nothing) {
    answer(Response::plain(404));
  } else if (method != "GET" && method != "HEAD") {
    Response response = Response::plain(405);
    response.add("Allow", "GET, HEAD");
    answer(std::move(response));
  } else {
    answer(service_.files.respond(request.head.path, request.parsed));
  }
}

void HttpConnection::dispatchEntryPoint()
{
  Request &request = *request_;
  const std::string *wanted = request.head.parameter("request");
  const std::string &method = request.head.method;
  const bool reads = method == "GET" || method == "HEAD";
  if (wanted && *wanted == "resource" && (reads || method == "POST")) {
    beginResource();
  } else if (!reads) {
    Response response = Response::plain(405);
    response.add("Allow", "GET, HEAD");
    answer(std::move(response));
  } else if (wanted && *wanted == "ws") {
    openWebSocket();
  } else if (wanted && *wanted == "script") {
    const std::string *version = request.head.parameter("v");
    answer(service_.script.respond(version ? *version : std::string(), request.parsed));
  } else if (!redirectToTls()) {
    answerPage();
  }
}

void HttpConnection::answerPage()
{
  Response response;
  for (const Header &header : kPageHeaders)
    response.add(header.name, header.value);
  response.body = service_.sessions.bootstrapPage(request_->head);
  answer(std::move(response));
}

/// A page that is asked for in the clear at a port that also takes TLS is to be had by TLS.
bool HttpConnection::redirectToTls()
{
  const std::string &host = request_->head.host;
  if (!isInTheClear() || host.empty())
    return false;
  const std::string &target = request_->parsed.target;
  Response response = Response::plain(307);
  response.add("Location", "https://" + host + (target[0] == '/' ? target : std::string("/")));
  answer(std::move(response));
  return true;
}

bool HttpConnection::sameOrigin() const
{
  const bool secure = request_->head.scheme == "https";
  const std::string own = (secure ? "https://" : "http://") + withoutDefaultPort(request_->head.host, secure);
  return lowerCase(withoutDefaultPort(request_->parsed.header("origin"), secure)) == lowerCase(own);
}

/// 0 if a WebSocket may be opened, else the status that says why not.
int HttpConnection::webSocketRefusal() const
{
  const ParsedHead &parsed = request_->parsed;
  if (parsed.method != "GET" || !parsed.http11 || !listed(parsed.header("upgrade"), "websocket") ||
      !listed(parsed.header("connection"), "upgrade") ||
      !WebSocketCodec::isKey(parsed.header("sec-websocket-key")) ||
      parser_->state() != RequestParser::State::Done)
    return 400;
  if (parsed.header("sec-websocket-version") != "13")
    return 426;
  return sameOrigin() && !isInTheClear() ? 0 : 403;
}

void HttpConnection::openWebSocket()
{
  if (const int refusal = webSocketRefusal()) {
    Response response = Response::plain(refusal);
    if (refusal == 426) {
      response.add("Upgrade", "websocket");
      response.add("Sec-WebSocket-Version", "13");
    }
    answer(std::move(response));
    return;
  }
  const std::unique_ptr<Request> request = std::move(request_);
  parser_.reset();
  service_.accessLog.write(peer_.address, "GET", request->head.path, 101, 0);
  channel_->send("HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                 "Sec-WebSocket-Accept: " +
                 WebSocketCodec::acceptValue(request->parsed.header("sec-websocket-key")) + "\r\n\r\n");
  state_ = State::WebSocket;
  link_ = std::make_shared<WebSocketLink>(service_, *channel_);
  link_->open(service_.sessions.connected(request->head, link_));
}

// Resources and uploads

void HttpConnection::beginResource()
{
  Request &request = *request_;
  const ParsedHead &parsed = request.parsed;
  const bool whole = parser_->state() == RequestParser::State::Done;
  if (isInTheClear()) {
    refuse(403);
  } else if (whole) {
    askResource({}, 0);
  } else if (const int refusal = uploadRefusal()) {
    refuse(refusal);
  } else if (parsed.contentLength > service_.maximumBody) {
    askResource({}, parsed.contentLength);
  } else {
    request.upload = std::make_unique<UploadBody>(parsed.header("content-type"));
    service_.uploads.insert(uploadPlace());
    request.bodyBegan = service_.loop.now();
    deadline_ = request.bodyBegan + service_.limits.body;
    state_ = State::Body;
    parser_->setBodySink([this](std::string_view bytes) { bodyBytes(bytes); });
    if (lowerCase(parsed.header("expect")) == "100-continue" && parsed.http11)
      channel_->send("HTTP/1.1 100 Continue\r\n\r\n");
  }
}

/// 0 if a body may be taken in, else the status that says why not.
int HttpConnection::uploadRefusal() const
{
  const ParsedHead &parsed = request_->parsed;
  if (parsed.method != "POST")
    return 400;
  if (!parsed.header("origin").empty() && !sameOrigin())
    return 403;
  if (!service_.sessions.hasResource(request_->head))
    return 404;
  const bool full = service_.uploads.size() >= service_.limits.uploads;
  return full || service_.uploads.count(uploadPlace()) ? 503 : 0;
}

/// Each session has one.
std::string HttpConnection::uploadPlace() const
{
  const std::string *session = request_->head.parameter("wtd");
  return session ? *session : std::string();
}

void HttpConnection::bodyBytes(std::string_view bytes)
{
  Request &request = *request_;
  request.bodySize += bytes.size();
  if (request.bodySize > service_.maximumBody || !request.upload)
    return;
  if (!request.upload->feed(bytes))
    dropUpload();
  const TimePoint now = service_.loop.now();
  const std::chrono::seconds allowed(request.bodySize / service_.limits.bodyRate);
  deadline_ = request.bodyBegan + service_.limits.body + allowed;
  const std::uint64_t total = request.parsed.contentLength;
  if (total > 0 && (now - request.progressTold >= kProgressInterval || request.bodySize == total)) {
    request.progressTold = now;
    service_.sessions.uploadProgress(request.head, request.bodySize, total);
  }
}

void HttpConnection::dropUpload()
{
  if (!request_ || !request_->upload)
    return;
  request_->upload.reset();
  service_.uploads.erase(uploadPlace());
}

void HttpConnection::finishUpload()
{
  Request &request = *request_;
  request.keepAlive = request.parsed.keepAlive && !stopping_;
  if (!request.upload || !request.upload->finish()) {
    refuse(400);
    return;
  }
  std::multimap<std::string, std::string> texts = request.upload->takeParameters();
  std::vector<Engine::SpooledFile> files = request.upload->takeFiles();
  dropUpload();
  request.head.parameters.merge(texts);
  askResource(std::move(files), 0);
}

void HttpConnection::askResource(std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge)
{
  state_ = State::Answering;
  deadline_ = TimePoint::max();
  channel_->setReading(false);
  NetworkLoop &loop = service_.loop;
  const auto wake = [&loop, weak = weak_from_this()] {
    loop.post([weak] {
      if (const auto self = weak.lock())
        self->pumpResource();
    });
  };
  request_->pipe = std::make_shared<ResourcePipe>(wake);
  service_.sessions.resource(request_->head, std::move(files), tooLarge,
                             std::make_shared<ResourceWriter>(request_->pipe));
}

// Answers

void HttpConnection::sendHead(int status, const std::vector<std::pair<std::string, std::string>> &headers,
                              std::optional<std::uint64_t> length, bool hasBody)
{
  Request &request = *request_;
  request.status = status;
  request.begun = true;
  std::string head = "HTTP/1.1 " + std::to_string(status) + " ";
  head += reasonPhrase(status);
  head += "\r\nDate: " + httpDate(std::time(nullptr)) + "\r\n";
  for (const Header &header : kCommonHeaders)
    head.append(header.name).append(": ").append(header.value).append("\r\n");
  if (service_.strictTransport && peer_.secure)
    head.append("Strict-Transport-Security: ").append(kStrictTransport).append("\r\n");
  for (const auto &header : headers)
    head.append(header.first).append(": ").append(header.second).append("\r\n");
  if (hasBody && length)
    head += "Content-Length: " + std::to_string(*length) + "\r\n";
  else if (hasBody && request.chunked)
    head += "Transfer-Encoding: chunked\r\n";
  head += request.keepAlive ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n";
  channel_->send(std::move(head));
}

void HttpConnection::answer(Response response)
{
  Request &request = *request_;
  state_ = State::Answering;
  deadline_ = TimePoint::max();
  channel_->setReading(false);
  const bool hasBody = response.status != 304;
  const std::uint64_t size = response.bodySize();
  sendHead(response.status, response.headers, size, hasBody);
  if (hasBody && !request.headOnly) {
    request.sent = size;
    if (response.file) {
      request.file = std::move(response.file);
      request.fileOffset = response.fileOffset;
      request.fileLeft = response.fileLength;
      pumpFile();
      return;
    }
    if (response.sharedBody)
      channel_->send(*response.sharedBody);
    else if (!response.body.empty())
      channel_->send(std::move(response.body));
  }
  finishAnswer();
}

void HttpConnection::pumpFile()
{
  Request &request = *request_;
  while (request.fileLeft > 0 && channel_->queued() < shortQueue) {
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(request.fileLeft, shortQueue)), '\0');
    const ssize_t n =
        ::pread(request.file.get(), &bytes[0], bytes.size(), static_cast<off_t>(request.fileOffset));
    if (n <= 0) {
      // The file has become shorter than announced: only a cut connection tells the browser so.
      channel_->abort();
      return;
    }
    bytes.resize(static_cast<std::size_t>(n));
    request.fileOffset += bytes.size();
    request.fileLeft -= bytes.size();
    channel_->send(std::move(bytes));
  }
  if (request.fileLeft == 0)
    finishAnswer();
}

void HttpConnection::pumpResource()
{
  if (!channel_ || !request_ || !request_->pipe || channel_->queued() >= shortQueue)
    return;
  Request &request = *request_;
  ResourcePipe::Arrived arrived = request.pipe->take();
  if (arrived.head)
    beginResourceAnswer(*arrived.head, arrived.finished, arrived.bytes.size());
  if (!arrived.bytes.empty() && !request.headOnly)
    sendResourceBytes(std::move(arrived.bytes));
  if (!arrived.finished)
    return;
  if (request.headOnly || !request.promised || request.sent == *request.promised) {
    if (request.chunked && !request.headOnly)
      channel_->send("0\r\n\r\n");
    finishAnswer();
  } else {
    channel_->abort();
  }
}

void HttpConnection::beginResourceAnswer(const ResourcePipe::Head &head, bool finished, std::size_t size)
{
  Request &request = *request_;
  const int status = head.status >= 200 && head.status <= 599 ? head.status : 500;
  const bool hasBody = status != 204 && status != 304;
  std::vector<std::pair<std::string, std::string>> headers;
  if (!head.mimeType.empty())
    headers.emplace_back("Content-Type", head.mimeType);
  headers.insert(headers.end(), head.headers.begin(), head.headers.end());
  const auto unfit = [](const auto &header) {
    const std::string name = lowerCase(header.first);
    return !isToken(header.first) || std::count(std::begin(kOwnHeaders), std::end(kOwnHeaders), name) > 0 ||
           std::any_of(header.second.begin(), header.second.end(),
                       [](unsigned char c) { return (c < 0x20 && c != '\t') || c == 0x7f; });
  };
  headers.erase(std::remove_if(headers.begin(), headers.end(), unfit), headers.end());
  // What a session gives out is for its person only, unless the resource says otherwise.
  const auto isCacheControl = [](const auto &header) { return lowerCase(header.first) == "cache-control"; };
  if (std::none_of(headers.begin(), headers.end(), isCacheControl))
    headers.emplace_back("Cache-Control", "no-store");
  request.headOnly = request.headOnly || !hasBody;
  request.promised = head.length;
  if (!head.length && finished && !(request.parsed.method == "HEAD"))
    request.promised = size;
  if (!request.promised) {
    request.chunked = request.parsed.http11;
    request.keepAlive = request.keepAlive && request.chunked;
  }
  sendHead(status, headers, request.promised, hasBody);
}

void HttpConnection::sendResourceBytes(std::string bytes)
{
  Request &request = *request_;
  if (request.promised && bytes.size() > *request.promised - request.sent)
    bytes.resize(static_cast<std::size_t>(*request.promised - request.sent));
  request.sent += bytes.size();
  if (request.chunked) {
    char size[24];
    std::snprintf(size, sizeof size, "%zx\r\n", bytes.size());
    bytes = size + bytes + "\r\n";
  }
  channel_->send(std::move(bytes));
}

bool HttpConnection::isKnown() const
{
  return link_ ? link_->greeted() : request_ && (request_->pipe || request_->upload);
}

void HttpConnection::finishAnswer()
{
  const std::unique_ptr<Request> request = std::move(request_);
  const std::string &path = request->head.path;
  service_.accessLog.write(peer_.address, request->head.method, path.empty() ? "-" : path, request->status,
                           request->sent);
  parser_.reset();
  if (request->keepAlive && !stopping_) {
    state_ = State::Idle;
    deadline_ = service_.loop.now() + service_.limits.keepAlive;
    channel_->setReading(true);
    process();
  } else {
    state_ = State::Closing;
    input_ = std::string();
    channel_->closeAfterSending();
  }
}

// The channel's news

void HttpConnection::sent()
{
  if (!channel_ || state_ != State::Answering || !request_)
    return;
  const auto self = shared_from_this();
  if (request_->pipe)
    pumpResource();
  else if (request_->file)
    pumpFile();
}

void HttpConnection::gone()
{
  channel_ = nullptr;
  dropUpload();
  if (request_ && request_->pipe)
    request_->pipe->abandon();
  request_.reset();
  state_ = State::Closing;
  deadline_ = TimePoint::max();
  if (link_)
    link_->gone();
}

void HttpConnection::shutDown()
{
  stopping_ = true;
  if (!channel_)
    return;
  if (link_) {
    link_->shutDown();
  } else if (state_ == State::Idle || state_ == State::Head) {
    state_ = State::Closing;
    channel_->abort();
  } else if (request_) {
    request_->keepAlive = false;
  }
}

void HttpConnection::expired()
{
  const auto self = shared_from_this();
  if (link_) {
    link_->expired();
    return;
  }
  deadline_ = TimePoint::max();
  if (!channel_)
    return;
  if (state_ == State::Head || state_ == State::Body) {
    refuse(408);
  } else if (state_ == State::Idle) {
    state_ = State::Closing;
    channel_->closeAfterSending();
  }
}

} // namespace Net
} // namespace Wt
