#pragma once

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libswresample/swresample.h>
}

namespace orvanta::sound {

/// A `unique_ptr` for what the library frees through a pointer to the pointer.
template <auto release>
struct Release {
    template <class T>
    void operator()(T* object) const {
        release(&object);
    }
};

struct CloseParser {
    void operator()(AVCodecParserContext* parser) const { av_parser_close(parser); }
};

using Context = std::unique_ptr<AVCodecContext, Release<avcodec_free_context>>;
using Packet = std::unique_ptr<AVPacket, Release<av_packet_free>>;
using Frame = std::unique_ptr<AVFrame, Release<av_frame_free>>;
using Converter = std::unique_ptr<SwrContext, Release<swr_free>>;
using Parser = std::unique_ptr<AVCodecParserContext, CloseParser>;

}  // namespace orvanta::sound
