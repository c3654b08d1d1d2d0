#pragma once

#include "listings/Page.h"
#include "platform/DispatchQueue.h"

namespace vidora {

/// Reads a page as Page::readUtf8 does, but decodes a large one on another thread while the sink, which runs on the
/// calling thread, works on what came before. What is decoded ahead is bounded, so the memory is the same for any
/// document. An exception of the sink or of the decoding leaves on the calling thread, once the other thread is done.
/// `quality` is the class of service of that other thread.
Page::Outcome readUtf8Ahead(const Page& page, const Page::Sink& sink,
                            QualityOfService quality = QualityOfService::Utility);

} // namespace vidora
