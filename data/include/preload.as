// 読み込みが終わるまで待つフレームに置く。 0 から 100 の値を loaded に入れる。
loaded = Math.floor(this.getBytesLoaded() / this.getBytesTotal() * 100);
if (_framesloaded < _totalframes) {
	gotoAndPlay(_currentframe - 1);
}
