#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "document/elements/clsLayerObjElement.h"
#include "document/records/clsPropertyBmp.h"
#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "swf/authoring/mdlSWFAuthoring.h"
#include "swf/mdlZlib.h"
#include "tests/swf/MovieParser.h"

namespace tamber {

using test::ParsedMovie;
using test::ParsedPlace;

/// A project in memory that is built into a movie and read again.
class AuthoringTest : public testing::Test {
protected:
    std::shared_ptr<clsSymbolData> AddBitmap(Long width, Long height) {
        auto symbol = std::make_shared<clsSymbolData>(KindBitmap);
        auto& record = *symbol->Property<clsPropertyBmp>();
        record.Width = width;
        record.height = height;
        record.BitCount = 32;
        record.bufBmp =
            mdlZlib::ZlibCompress(Bytes(static_cast<std::size_t>(width * height * 4), 255));
        return AddSymbol(symbol);
    }

    std::shared_ptr<clsSymbolData> AddSymbol(std::shared_ptr<clsSymbolData> symbol) {
        symbol->ID = library.Count() + 1;
        library.Add(symbol);
        return symbol;
    }

    static std::shared_ptr<clsLayer> LayerOf(std::shared_ptr<clsSymbolData> symbol) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(std::move(symbol));
        return layer;
    }

    std::shared_ptr<clsLayer> AddLayer(std::shared_ptr<clsSymbolData> symbol) {
        layers.Add(LayerOf(std::move(symbol)));
        return layers(layers.Count());
    }

    static clsLayerObject& AddKeyFrame(clsLayer& layer, Long frame, Long count, Single x = 0,
                                       Single y = 0) {
        Long index = 0;
        layer.Add(frame, nullptr, index);
        clsLayerObject& object = *layer.Object(index);
        object.DispCount(count);
        if (clsLayerObjElement* placement = object.Placement()) {
            placement->X(x);
            placement->Y(y);
        }
        return object;
    }

    MovieRequest Request(Long version = 6) {
        MovieRequest request;
        request.Width = 6400;
        request.Height = 4800;
        request.Version = version;
        request.Library = &library;
        request.Layers = &layers;
        request.blCompress = blCompress;
        request.blTopToBottom = blTopToBottom;
        request.Path = FromNarrow(path.string());
        return request;
    }

    ParsedMovie Build(Long version = 6) {
        const UserInterfaceScope scope(interface);
        const MovieRequest request = Request(version);
        const MovieOutcome outcome = mdlSWFAuthoring::BuildMovie(request);
        EXPECT_TRUE(outcome.Written);
        ShowNotices(outcome.Told);
        return test::ParseMovie(request.Path);
    }

    /// The one message that a build ends with before it writes anything.
    String Refusal(const MovieRequest& request) {
        const MovieOutcome outcome = mdlSWFAuthoring::BuildMovie(request);
        EXPECT_FALSE(outcome.Written);
        EXPECT_FALSE(std::filesystem::exists(path));
        EXPECT_EQ(outcome.Told.size(), 1u);
        return outcome.Told.empty() ? String() : outcome.Told[0].Text;
    }

    void TearDown() override { std::filesystem::remove(path); }

    Collection<clsSymbolData> library;
    Collection<clsLayer> layers;
    RecordingUserInterface interface;
    bool blCompress = false;
    bool blTopToBottom = true;
    std::filesystem::path path =
        std::filesystem::path(testing::TempDir()) /
        (std::string("authoring_") + testing::UnitTest::GetInstance()->current_test_info()->name() +
         ".swf");
};

}  // namespace tamber
