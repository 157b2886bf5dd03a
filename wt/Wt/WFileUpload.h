// SPDX-License-Identifier: MIT
#ifndef WT_WFILEUPLOAD_H_
#define WT_WFILEUPLOAD_H_

#include <Wt/Http/Request>
#include <Wt/WJavaScript>
#include <Wt/WWebWidget>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

class WProgressBar;

/**
 * Lets a user choose a file and sends it to a temporary file of the server.
 *
 * changed(): the user has chosen; nothing is sent yet. Then upload(); dataReceived() as it comes; and either
 * uploaded(), also if no file was chosen, or fileTooLarge(). The temporary file goes with the widget, or with
 * the next upload, unless it was stolen.
 */
class WFileUpload : public WWebWidget
{
public:
  explicit WFileUpload(WContainerWidget *parent = nullptr);
  ~WFileUpload() override;

  /// Does nothing while an upload runs.
  void upload();
  bool canUpload() const { return true; }

  /// Absolute; empty before an upload.
  std::string spoolFileName() const;
  /// As the user's system names it, without folders.
  WString clientFileName() const;
  /// True if nothing was uploaded.
  bool empty() const { return files_.empty(); }
  const std::vector<Http::UploadedFile> &uploadedFiles() const { return files_; }
  /// Leaves the temporary file to the caller.
  void stealSpooledFile();

  /// The field's width in characters; 20 by default.
  void setFileTextSize(int characters);
  int fileTextSize() const { return textSize_; }

  /// Shows the progress. A bar without parent is taken over and stands in the field's place during an upload;
  /// another one stays where it is, and the field is hidden by upload().
  void setProgressBar(WProgressBar *bar);
  WProgressBar *progressBar() const { return progressBar_; }

  EventSignal<> &changed() { return eventSignal<NoClass>("change"); }
  EventSignal<> &uploaded() { return uploaded_; }
  /// The size in bytes.
  JSignal<std::int64_t> &fileTooLarge() { return fileTooLarge_; }
  /// Bytes got, and bytes in all.
  Signal<std::uint64_t, std::uint64_t> &dataReceived() { return dataReceived_; }

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  Dom::Element *focusElement() const override { return input_; }
  void propagateSetEnabled(bool enabled) override;
  void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event) override;
  void domGone(Dom::Element &gone) noexcept override;
  void removeChild(WObject *child) override;

private:
  class Receiver;

  void received(std::vector<Http::UploadedFile> files, std::uint64_t tooLarge);
  void progressed(std::uint64_t got, std::uint64_t total);
  void begin();
  bool end();
  void tooLarge(std::int64_t size);
  bool ownsBar() const;

  std::vector<Http::UploadedFile> files_;
  std::shared_ptr<Receiver> receiver_;
  WProgressBar *progressBar_ = nullptr;
  Signals::connection barDestroyed_;
  Dom::Element *input_ = nullptr;
  int textSize_ = 20;
  bool uploading_ = false;
  bool beginWanted_ = false;
  EventSignal<> uploaded_;
  JSignal<std::int64_t> fileTooLarge_;
  Signal<std::uint64_t, std::uint64_t> dataReceived_;
};

} // namespace Wt

#endif // WT_WFILEUPLOAD_H_
