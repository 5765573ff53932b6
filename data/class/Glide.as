// ムービークリップの値を、決めたフレーム数で滑らかに変える。
// 使い方: Glide.to(ball_mc, "_x", 200, 24);
class Glide {
	static function to(clip, name, value, frames) {
		var from = clip[name];
		var passed = 0;
		var runner = clip.createEmptyMovieClip("glide_" + name, clip.getNextHighestDepth());
		runner.onEnterFrame = function() {
			passed++;
			var u = passed / frames;
			clip[name] = passed < frames ? from + (value - from) * u * u * (3 - 2 * u) : value;
			if (passed >= frames) {
				this.removeMovieClip();
			}
		};
		return runner;
	}
}
