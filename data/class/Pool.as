// 同じ部品を何度も使い回す。
// 使い方: var shots = new Pool(_root, "shot", 20); var shot = shots.take(); shots.giveBack(shot);
class Pool {
	var parent;
	var linkage;
	var free;
	var made;
	var most;
	function Pool(owner, name, count) {
		this.parent = owner;
		this.linkage = name;
		this.most = count;
		this.made = 0;
		this.free = new Array();
	}
	function take() {
		if (this.free.length > 0) {
			var clip = this.free.pop();
			clip._visible = true;
			return clip;
		}
		if (this.made >= this.most) {
			return null;
		}
		this.made++;
		var depth = this.parent.getNextHighestDepth();
		return this.parent.attachMovie(this.linkage, this.linkage + "_" + depth, depth);
	}
	function giveBack(clip) {
		clip._visible = false;
		this.free.push(clip);
	}
}
